# What `cpack` packs into the build's folder "package":
#
#     windows   a ZIP of the programs with all they need, and the set-up program and the MSI of the sample product
#     native    a tar.gz of the developers' tools with all they need
#
# The target "packaged" builds what `cpack` packs.

set(CPACK_PACKAGE_VENDOR "Velmora")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/package")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_NVX_CACHE "${NVX_CACHE}")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/installer/describe_contents.cmake")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/installer/prepare_files.cmake")

# The contents of a package are entries of "build folder;project;component;folder in the package".
set(nvx_package_of "${CMAKE_BINARY_DIR};${PROJECT_NAME}")
add_custom_target(packaged)
if(WIN32)
    add_dependencies(packaged built_programs sample_product NVXSetupTask)
    set(CPACK_GENERATOR ZIP External)
    set(CPACK_PACKAGE_NAME "NVX-2017")
    set(CPACK_PACKAGE_FILE_NAME "NVX-2017-programs-${PROJECT_VERSION}-win64")
    set(CPACK_INSTALL_CMAKE_PROJECTS "${nvx_package_of};configuration;/;${nvx_package_of};tools;/")
    set(CPACK_EXTERNAL_ENABLE_STAGING ON)
    set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${PROJECT_SOURCE_DIR}/installer/make_installer.cmake")
    set(NVX_SET_UP_PROJECTS
        "${nvx_package_of};configuration;/product"
        "${nvx_package_of};tools;/tools"
        "${nvx_package_of};sample;/")
    set(NVX_SETUP_TASK "${CMAKE_BINARY_DIR}/installer/NVXSetupTask.exe")
    set(NVX_INSTALLER_PICTURES "${PROJECT_SOURCE_DIR}/resource/images")
else()
    add_dependencies(packaged built_tools)
    set(CPACK_GENERATOR External)
    set(CPACK_EXTERNAL_ENABLE_STAGING ON)
    set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${PROJECT_SOURCE_DIR}/installer/make_archive.cmake")
    set(CPACK_PACKAGE_NAME "nvx-2017-tools")
    set(CPACK_PACKAGE_FILE_NAME "nvx-2017-tools-${PROJECT_VERSION}-linux-x86_64")
    set(CPACK_INSTALL_CMAKE_PROJECTS "${nvx_package_of};tools;/")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/package_by_generator.cmake.in"
    "${CMAKE_BINARY_DIR}/package_by_generator.cmake" @ONLY)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_BINARY_DIR}/package_by_generator.cmake")

include(CPack)
