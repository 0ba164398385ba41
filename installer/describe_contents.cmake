# Writes what a package contains next to it (make_sbom.py). Run by CPack after it has packed.

find_program(python python3 REQUIRED)
execute_process(
    COMMAND "${python}" -B "${CMAKE_CURRENT_LIST_DIR}/make_sbom.py" "${CPACK_TEMPORARY_DIRECTORY}"
        "${CPACK_PACKAGE_VERSION}" "${CPACK_NVX_CACHE}" "${CPACK_PACKAGE_DIRECTORY}/${NVX_BILL_OF_MATERIALS}"
    COMMAND_ERROR_IS_FATAL ANY)
