# Makes the archive for Linux from what CPack has staged. Run by CPack. CPack itself would write the user and the group of
# whoever packs into it.

include("${CMAKE_CURRENT_LIST_DIR}/source_date.cmake")
find_program(tar tar REQUIRED)
find_program(gzip gzip REQUIRED)

get_filename_component(parent "${CPACK_TEMPORARY_DIRECTORY}" DIRECTORY)
get_filename_component(folder "${CPACK_TEMPORARY_DIRECTORY}" NAME)
set(archive "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.gz")
execute_process(
    COMMAND "${tar}" -C "${parent}" --format=gnu --sort=name --owner=root:0 --group=root:0
        "--mtime=@$ENV{SOURCE_DATE_EPOCH}" -cf - "${folder}"
    COMMAND "${gzip}" -6n
    OUTPUT_FILE "${archive}"
    COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${archive}")
