# Makes the set-up program and the MSI from what CPack has staged: the files of the folder "product" belong in the
# install dir, those of "tools" too if the developers' tools are selected, those of "translators" in the translators'
# folder. Run by CPack.

find_program(python python3 REQUIRED)
include("${CMAKE_CURRENT_LIST_DIR}/make_msi.cmake")

# describe_languages(): adds a macro to `lists` that does something with each language of the product's table. The
# first language of the table comes first, the others in the order of their locales.
function(describe_languages)
    execute_process(
        COMMAND "${python}" -B "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../tools/languages.py" locale installerName
        OUTPUT_VARIABLE rows OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" rows "${rows}")
    list(POP_FRONT rows default)
    list(SORT rows)
    string(APPEND lists "!macro EachLanguage ACTION\n")
    foreach(row IN LISTS default rows)
        string(REPLACE "\t" ";" row "${row}")
        list(GET row 0 locale)
        list(GET row 1 name)
        string(TOUPPER "${name}" id)
        string(APPEND lists "    !insertmacro \${ACTION} ${locale} ${name} ${id}\n")
    endforeach()
    string(APPEND lists "!macroend\n")
    set(lists "${lists}" PARENT_SCOPE)
endfunction()

# describe_files(NAME FOLDER): adds two macros to `lists`, which do something with each file in the folder and with
# each folder below it, subfolders first. Adds the size of the files to `bytes`.
function(describe_files name folder)
    file(GLOB_RECURSE files RELATIVE "${folder}" LIST_DIRECTORIES false "${folder}/*")
    list(SORT files)
    set(folders "")
    string(APPEND lists "!macro Each${name}File ACTION\n")
    foreach(file ${files})
        get_filename_component(parent "${file}" DIRECTORY)
        set(place "")
        if(parent)
            set(place "/${parent}")
        endif()
        string(REPLACE "/" "\\" windows_place "${place}")
        string(REPLACE "/" "\\" windows_file "/${file}")
        string(APPEND lists
            "    !insertmacro \${ACTION} \"${windows_place}\" \"${windows_file}\" \"${folder}/${file}\"\n")
        file(SIZE "${folder}/${file}" size)
        math(EXPR bytes "${bytes} + ${size}")
        while(place)
            list(APPEND folders "${place}")
            string(REGEX REPLACE "/[^/]*$" "" place "${place}")
        endwhile()
    endforeach()
    list(REMOVE_DUPLICATES folders)
    list(SORT folders ORDER DESCENDING)
    string(APPEND lists "!macroend\n!macro Each${name}Folder ACTION\n")
    foreach(place ${folders})
        string(REPLACE "/" "\\" place "${place}")
        string(APPEND lists "    !insertmacro \${ACTION} \"${place}\"\n")
    endforeach()
    string(APPEND lists "    !insertmacro \${ACTION} \"\"\n!macroend\n")
    set(lists "${lists}" PARENT_SCOPE)
    set(bytes "${bytes}" PARENT_SCOPE)
endfunction()

set(lists "")
set(bytes 0)
set(laid_out "${CPACK_TEMPORARY_DIRECTORY}")
describe_languages()
describe_files(Product "${laid_out}/product")
describe_files(Tools "${laid_out}/tools")
describe_files(Translators "${laid_out}/translators")
set(lists_file "${CPACK_TOPLEVEL_DIRECTORY}/files.nsh")
# Without the byte order mark the compiler would read the names in another encoding.
string(ASCII 239 187 191 mark)
file(WRITE "${lists_file}" "${mark}${lists}")

nvx_copy_task(task)
# The set-up program stores the pictures' times.
set(pictures "${CPACK_TOPLEVEL_DIRECTORY}/pictures")
file(COPY "${NVX_INSTALLER_PICTURES}/program.ico" "${NVX_INSTALLER_PICTURES}/setup.bmp" DESTINATION "${pictures}")
file(GLOB files "${pictures}/*")
execute_process(COMMAND touch -d "@$ENV{SOURCE_DATE_EPOCH}" ${files} COMMAND_ERROR_IS_FATAL ANY)

math(EXPR kilobytes "${bytes} / 1024")
set(set_up "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_NAME}-${CPACK_PACKAGE_VERSION}-setup.exe")
execute_process(
    COMMAND "${NVX_MAKENSIS}" -V2 -WX -INPUTCHARSET UTF8
        "-DPRODUCT_VERSION=${CPACK_PACKAGE_VERSION}"
        "-DPRODUCT_KILOBYTES=${kilobytes}"
        "-DLISTS=${lists_file}"
        "-DSETUP_TASK=${task}"
        "-DSIGN=\"${CMAKE_COMMAND}\" -DFILE=%1 -P \"${CMAKE_CURRENT_LIST_DIR}/sign.cmake\""
        "-DICON=${pictures}/program.ico"
        "-DSIDE_PICTURE=${pictures}/setup.bmp"
        "-DOUT_FILE=${set_up}"
        "${CMAKE_CURRENT_LIST_DIR}/nvx.nsi"
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The set-up program was not made: makensis ended with ${result}")
endif()
nvx_sign("${set_up}")

set(msi "${CPACK_TOPLEVEL_DIRECTORY}/${NVX_MSI}")
nvx_make_msi("${laid_out}" "${task}" "${msi}")
set(CPACK_EXTERNAL_BUILT_PACKAGES "${set_up}" "${msi}")
