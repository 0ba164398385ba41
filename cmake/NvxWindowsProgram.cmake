# nvx_windows_program(TARGET DESCRIPTION TEXT ICON NAME [ADMINISTRATOR]): what Windows shows of a program and
# must know of it: its version, its icon resource/images/NAME.ico, and its manifest. ADMINISTRATOR makes
# Windows ask for an administrator's rights before it starts. Nothing elsewhere.
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

    # Apart from the program, whose compiler's options mean nothing to the resource compiler.
    add_library(${target}_resources OBJECT "${script}")
    set_source_files_properties("${script}" PROPERTIES OBJECT_DEPENDS "${program_icon};${program_manifest}")
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_resources>)
endfunction()
