# nvx_windows_program(TARGET DESCRIPTION TEXT ICON NAME [ADMINISTRATOR]): adds a version, the icon
# resource/images/NAME.ico and a manifest to a Windows program. With ADMINISTRATOR, Windows asks for
# administrator rights at its start. Does nothing on other systems.
function(nvx_windows_program target)
    if(NOT WIN32)
        return()
    endif()
    cmake_parse_arguments(ARG "ADMINISTRATOR" "DESCRIPTION;ICON" "" ${ARGN})
    set(program_name ${target})
    set(program_description "${ARG_DESCRIPTION}")
    set(program_icon "${PROJECT_SOURCE_DIR}/resource/images/${ARG_ICON}.ico")
    set(program_manifest "${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest")
    set(execution_level asInvoker)
    if(ARG_ADMINISTRATOR)
        set(execution_level requireAdministrator)
    endif()
    string(REPLACE "." "," version_numbers "${PROJECT_VERSION}.0")

    set(templates "${PROJECT_SOURCE_DIR}/resource/windows")
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${templates}/program.manifest.in" "${program_manifest}" @ONLY)
    configure_file("${templates}/program.rc.in" "${script}" @ONLY)

    # A target of its own: the resource compiler does not accept the program's compiler options.
    add_library(${target}_resources OBJECT "${script}")
    set_source_files_properties("${script}" PROPERTIES OBJECT_DEPENDS "${program_icon};${program_manifest}")
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_resources>)
endfunction()
