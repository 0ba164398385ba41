# Prepares what CPack has staged: signs the programs and libraries, and gives all files the time of the commit and access
# rights that do not depend on the user's mask, so that the same sources give the same packages. Run by CPack before it
# packs.

include("${CMAKE_CURRENT_LIST_DIR}/sign.cmake")

file(GLOB_RECURSE programs "${CPACK_TEMPORARY_DIRECTORY}/*.exe" "${CPACK_TEMPORARY_DIRECTORY}/*.dll")
nvx_sign(${programs})

include("${CMAKE_CURRENT_LIST_DIR}/source_date.cmake")
execute_process(COMMAND chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_DIRECTORY}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find "${CPACK_TEMPORARY_DIRECTORY}" -exec touch -h -d "@$ENV{SOURCE_DATE_EPOCH}" {} +
    COMMAND_ERROR_IS_FATAL ANY)
