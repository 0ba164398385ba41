# Sets SOURCE_DATE_EPOCH, the time that tools write into what they make, to the time of the commit.

if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    execute_process(COMMAND git -C "${CMAKE_CURRENT_LIST_DIR}" log -1 --format=%ct
        OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(NOT time)
        string(TIMESTAMP time "%s")
    endif()
    set(ENV{SOURCE_DATE_EPOCH} "${time}")
endif()
