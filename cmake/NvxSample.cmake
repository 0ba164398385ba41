# Declares the parts of the sample product: a call for each program, library, file or archive of a folder, and
# at its end sample_area, which adds them to the product. The variable "product" is the folder they are built
# into.

# sample_program(NAME SOURCE): a program without libraries of its own.
function(sample_program name source)
    add_executable(${name} ${source})
    target_link_libraries(${name} PRIVATE nvx_options)
    target_link_options(${name} PRIVATE -static)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${product}")
    set_property(DIRECTORY APPEND PROPERTY sample_parts ${name})
endfunction()

# sample_library(NAME FOLDER SOURCE...): the target sample_NAME, a library in a folder of the product.
function(sample_library name folder)
    sample_library_named(sample_${name} ${name} "${folder}" ${ARGN})
endfunction()

# sample_library_named(TARGET NAME FOLDER SOURCE...): the same, where several libraries have one name.
function(sample_library_named target name folder)
    add_library(${target} SHARED ${ARGN})
    target_link_libraries(${target} PRIVATE nvx_options)
    target_link_options(${target} PRIVATE -static)
    set_target_properties(${target} PROPERTIES
        PREFIX "" OUTPUT_NAME "${name}"
        RUNTIME_OUTPUT_DIRECTORY "${product}/${folder}"
        ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/import/${folder}")
    set_property(DIRECTORY APPEND PROPERTY sample_parts ${target})
endfunction()

# sample_copy(SOURCE TARGET): copies a file to the path TARGET of the product.
function(sample_copy source target)
    get_filename_component(source "${source}" ABSOLUTE)
    get_filename_component(folder "${product}/${target}" DIRECTORY)
    add_custom_command(OUTPUT "${product}/${target}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
        COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${product}/${target}"
        DEPENDS "${source}"
        VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY sample_files "${product}/${target}")
endfunction()

# sample_archive(ARCHIVE FOLDER): packs the contents of a folder into the file ARCHIVE, without the times and access rights
# of the files, which differ from checkout to checkout.
function(sample_archive archive folder)
    find_program(NVX_SEVEN_ZIP 7zz REQUIRED)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*")
    add_custom_command(OUTPUT "${archive}"
        COMMAND ${CMAKE_COMMAND} -E rm -f "${archive}"
        COMMAND ${NVX_SEVEN_ZIP} a -bso0 -bsp0 -mtm=off -mtr=off "${archive}" .
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${folder}"
        DEPENDS ${files}
        VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY sample_files "${archive}")
endfunction()

# sample_area(NAME): adds the parts declared in this folder to the target sample_product.
function(sample_area name)
    get_property(files DIRECTORY PROPERTY sample_files)
    get_property(parts DIRECTORY PROPERTY sample_parts)
    add_custom_target(sample_${name} DEPENDS ${files})
    if(parts)
        add_dependencies(sample_${name} ${parts})
    endif()
    add_dependencies(sample_product sample_${name})
endfunction()
