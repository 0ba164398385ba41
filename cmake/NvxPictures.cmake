# nvx_pictures(NAME QRC): a target with the pictures that a .qrc file lists. Programs that link it, directly
# or through a static library, have the pictures at start: the target links object files, since a linker would
# leave unused objects of a static library out. It must be declared before the targets that link it.
function(nvx_pictures name qrc)
    add_library(${name}_objects OBJECT ${qrc})
    # PNGs do not get smaller, and the Qt versions of the two builds support different compressions. The first format has
    # no times, which differ from checkout to checkout.
    set_target_properties(${name}_objects PROPERTIES
        AUTORCC ON AUTORCC_OPTIONS "--no-compress;--format-version;1")
    target_link_libraries(${name}_objects PRIVATE Qt6::Core)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE $<TARGET_OBJECTS:${name}_objects>)
endfunction()
