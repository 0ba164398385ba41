# What `cmake --install` installs: a folder from which the programs run without further set-up.
#
# For Windows all files are next to the programs, as the product's installer copies them. On other systems the
# programs are in bin, libraries that are not part of the operating system in lib, and Qt's plug-ins in
# plugins.
#
# `cmake --install` does not build. These targets build what it installs:
#
#     built_configuration       the configuration program and the translations
#     built_tools               the developers' tools and the translations
#     built_programs            both
#
# and these also install it, into the build's folder of the same name:
#
#     installed_configuration   the configuration program with all it needs, for Windows
#     installed_programs        all programs

set(nvx_tools UpdateErrorTable MessageTableCheck MessageTableUtility MaterialNameUtility NVXLogSummary)
set(nvx_programs NVXConfig ${nvx_tools})

add_custom_target(built_configuration)
add_dependencies(built_configuration NVXConfig translations)
add_custom_target(built_tools)
add_dependencies(built_tools ${nvx_tools} translations)
add_custom_target(built_programs)
add_dependencies(built_programs built_configuration built_tools)

# nvx_installed(WHAT [OPTION...]): the target installed_WHAT, which installs what built_WHAT builds, with
# options of `cmake --install`.
function(nvx_installed what)
    set(folder "${CMAKE_BINARY_DIR}/installed_${what}")
    # A file that is no longer installed must not be left from an earlier install.
    add_custom_target(installed_${what}
        COMMAND ${CMAKE_COMMAND} -E rm -rf "${folder}"
        COMMAND ${CMAKE_COMMAND} --install "${CMAKE_BINARY_DIR}" --prefix "${folder}" ${ARGN}
        VERBATIM)
    add_dependencies(installed_${what} built_${what})
endfunction()
nvx_installed(programs)

if(WIN32)
    nvx_installed(configuration --component configuration)
    # The developers' tools use the configuration program's libraries.
    set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME configuration)
    install(TARGETS NVXConfig RUNTIME DESTINATION .)
    install(TARGETS ${nvx_tools} RUNTIME DESTINATION . COMPONENT tools)
    install(DIRECTORY "${NVX_LANGUAGES_FOLDER}/" DESTINATION .
        FILES_MATCHING PATTERN "nvxconfig.qm" PATTERN "qt*.qm")
    install(DIRECTORY "${NVX_LANGUAGES_FOLDER}/" DESTINATION . COMPONENT tools
        FILES_MATCHING PATTERN "*.qm" PATTERN "nvxconfig.qm" EXCLUDE PATTERN "qt*.qm" EXCLUDE)

    foreach(library Core Gui Widgets)
        install(FILES "${NVX_QT_WINDOWS}/bin/Qt6${library}.dll" DESTINATION .)
    endforeach()
    install(FILES "${NVX_QT_WINDOWS}/plugins/platforms/qwindows.dll" DESTINATION platforms)
    install(FILES "${NVX_QT_WINDOWS}/plugins/styles/qwindowsvistastyle.dll" DESTINATION styles)

    foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(
            COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        get_filename_component(path "${path}" REALPATH)
        # Debug information is nine tenths of the largest one. The time in their headers would be that of now.
        set(stripped "${CMAKE_BINARY_DIR}/runtime/${library}")
        file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/runtime")
        execute_process(
            COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=1 "${CMAKE_STRIP}" -o "${stripped}" "${path}"
            COMMAND_ERROR_IS_FATAL ANY)
        install(FILES "${stripped}" DESTINATION .)
    endforeach()
    include(NvxLicences)

    # Only the set-up program contains the sample product.
    foreach(folder product translators)
        install(DIRECTORY "${CMAKE_BINARY_DIR}/sample/${folder}" DESTINATION .
            COMPONENT sample EXCLUDE_FROM_ALL)
    endforeach()
    # The package with 7-Zip for Windows has only a licence of its own.
    install(FILES /usr/share/doc/7zip/copyright /usr/share/common-licenses/LGPL-2.1
        DESTINATION product/licences/7-Zip COMPONENT sample EXCLUDE_FROM_ALL)
    return()
endif()

# The developers' tools are a package without the configuration program.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME tools)
set_target_properties(${nvx_programs} PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
foreach(program ${nvx_programs})
    # DT_RPATH, unlike DT_RUNPATH, is also used for the libraries that libraries need. A build id would differ from folder
    # to folder, because it depends on the debug information, which names the folder of the sources.
    target_link_options(${program} PRIVATE LINKER:--disable-new-dtags LINKER:--build-id=none)
endforeach()

# Parts of the operating system: the C library, and what depends on the machine's drivers and display.
set(system_libraries
    "^ld-linux" "^linux-vdso"
    "^lib(c|m|dl|rt|pthread|resolv|gcc_s|stdc\\+\\+)\\.so"
    "^lib(GL|GLX|GLdispatch|EGL|OpenGL|gbm|drm)[.-]"
    "^lib(X|x)" "^libfontconfig" "^libfreetype" "^libwayland")
install(TARGETS ${nvx_tools}
    RUNTIME_DEPENDENCY_SET nvx_tools_dependencies
    RUNTIME DESTINATION bin)
install(RUNTIME_DEPENDENCY_SET nvx_tools_dependencies
    PRE_EXCLUDE_REGEXES ${system_libraries}
    DESTINATION lib)
install(TARGETS NVXConfig
    RUNTIME_DEPENDENCY_SET nvx_configuration_dependencies
    RUNTIME DESTINATION bin COMPONENT configuration)
install(RUNTIME_DEPENDENCY_SET nvx_configuration_dependencies
    PRE_EXCLUDE_REGEXES ${system_libraries}
    DESTINATION lib COMPONENT configuration)

get_target_property(qt_core_library Qt6::Core LOCATION)
get_filename_component(qt_library_folder "${qt_core_library}" DIRECTORY)
foreach(plugin platforms/libqoffscreen.so platforms/libqxcb.so platforms/libqminimal.so)
    get_filename_component(folder "${plugin}" DIRECTORY)
    install(FILES "${qt_library_folder}/qt6/plugins/${plugin}" DESTINATION "plugins/${folder}")
endforeach()
install(FILES "${qt_library_folder}/libQt6XcbQpa.so.6" DESTINATION lib)
file(WRITE "${CMAKE_BINARY_DIR}/qt.conf" "[Paths]\nPrefix=..\nPlugins=plugins\n")
install(FILES "${CMAKE_BINARY_DIR}/qt.conf" DESTINATION bin)
install(DIRECTORY "${NVX_LANGUAGES_FOLDER}/" DESTINATION bin
    FILES_MATCHING PATTERN "*.qm" PATTERN "nvxconfig.qm" EXCLUDE)
install(DIRECTORY "${NVX_LANGUAGES_FOLDER}/" DESTINATION bin COMPONENT configuration
    FILES_MATCHING PATTERN "nvxconfig.qm")
include(NvxLicences)
