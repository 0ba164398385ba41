# Makes the MSI from what CPack has staged. Run by CPack (make_installer.cmake); also a script, with MSI as the file to make.

find_program(python python3 REQUIRED)
find_program(faketime faketime REQUIRED)
include("${CMAKE_CURRENT_LIST_DIR}/sign.cmake")

# nvx_make_msi(STAGED TASK MSI): the time of the files is also that of the package.
function(nvx_make_msi staged task msi)
    string(TIMESTAMP time "%Y-%m-%d %H:%M:%S" UTC)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env TZ=UTC "${faketime}" -f "${time}"
            "${python}" -B "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/make_msi.py" "${staged}" "${CPACK_PACKAGE_VERSION}"
            "${task}" "${NVX_INSTALLER_PICTURES}/program.ico" "${msi}"
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "The MSI was not made: make_msi.py ended with ${result}")
    endif()
    nvx_sign("${msi}")
endfunction()

# nvx_copy_task(VARIABLE): the path of a signed copy of NVXSetupTask.exe.
function(nvx_copy_task result)
    set(task "${CPACK_TOPLEVEL_DIRECTORY}/NVXSetupTask.exe")
    file(COPY_FILE "${NVX_SETUP_TASK}" "${task}")
    nvx_sign("${task}")
    execute_process(COMMAND touch -d "@$ENV{SOURCE_DATE_EPOCH}" "${task}" COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${task}" PARENT_SCOPE)
endfunction()

if(MSI)
    include("${CMAKE_CURRENT_LIST_DIR}/prepare_files.cmake")
    nvx_copy_task(task)
    nvx_make_msi("${CPACK_TEMPORARY_DIRECTORY}" "${task}" "${MSI}")
endif()
