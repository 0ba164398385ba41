# nvx_pictures(NAME QRC): the pictures that a .qrc file lists, as a target to link. Whatever links it, also by
# way of a static library, has them at start: the objects themselves are linked, which a linker that takes only
# what it needs from a library would leave out. It must be declared before them.
function(nvx_pictures name qrc)
    add_library(${name}_objects OBJECT ${qrc})
    # A PNG does not become smaller, and the two builds' toolkits do not know the same ways of packing.
    set_target_properties(${name}_objects PROPERTIES AUTORCC ON AUTORCC_OPTIONS "--no-compress")
    target_link_libraries(${name}_objects PRIVATE Qt6::Core)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE $<TARGET_OBJECTS:${name}_objects>)
endfunction()
