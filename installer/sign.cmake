# Signs programs, libraries and packages with the command in the environment variable NVX_SIGN: it is run for each file,
# with the file's path as its last argument, and signs the file in place. Without the variable nothing is signed.
#
# Other scripts include it for nvx_sign(FILE...); `cmake -DFILE=... -P sign.cmake` signs one file.

function(nvx_sign)
    if("$ENV{NVX_SIGN}" STREQUAL "")
        return()
    endif()
    foreach(file ${ARGN})
        execute_process(COMMAND sh -c "$ENV{NVX_SIGN} \"$1\"" sh "${file}" RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "${file} was not signed: the command in NVX_SIGN ended with ${result}")
        endif()
    endforeach()
endfunction()

if(FILE)
    nvx_sign("${FILE}")
endif()
