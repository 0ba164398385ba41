# Writes next to a package what it contains (make_sbom.py), and next to the MSI the manifests for winget
# (make_winget.py). Run by CPack after it has packed.

find_program(python python3 REQUIRED)
execute_process(
    COMMAND "${python}" -B "${CMAKE_CURRENT_LIST_DIR}/make_sbom.py" "${CPACK_TEMPORARY_DIRECTORY}"
        "${CPACK_PACKAGE_VERSION}" "${CPACK_NVX_CACHE}" "${CPACK_PACKAGE_DIRECTORY}/${NVX_BILL_OF_MATERIALS}"
    COMMAND_ERROR_IS_FATAL ANY)
if(NVX_MSI)
    execute_process(
        COMMAND "${python}" -B "${CMAKE_CURRENT_LIST_DIR}/make_winget.py" "${CPACK_TOPLEVEL_DIRECTORY}/${NVX_MSI}"
            "${CPACK_PACKAGE_VERSION}" "${CPACK_PACKAGE_DIRECTORY}/winget"
        COMMAND_ERROR_IS_FATAL ANY)
endif()
