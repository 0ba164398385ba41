# Writes what a package contains next to it (make_sbom.py). Run by CPack after it has packed.

find_program(python python3 REQUIRED)
set(name "${CPACK_PACKAGE_FILE_NAME}")
if(CPACK_GENERATOR STREQUAL "External")
    set(name "${CPACK_PACKAGE_NAME}-${CPACK_PACKAGE_VERSION}")
endif()
execute_process(
    COMMAND "${python}" -B "${CMAKE_CURRENT_LIST_DIR}/make_sbom.py" "${CPACK_TEMPORARY_DIRECTORY}"
        "${CPACK_PACKAGE_VERSION}" "${CPACK_NVX_CACHE}" "${CPACK_PACKAGE_DIRECTORY}/${name}.cdx.json"
    COMMAND_ERROR_IS_FATAL ANY)
