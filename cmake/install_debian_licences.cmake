# Installs the licences of the Debian libraries among the installed files, and the common licences they refer
# to.

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(licences "${folder}/licences")

# find_packages(RESULT FILE...): the packages of the files. One call for all files, since each call reads the
# lists of all packages.
function(find_packages result)
    execute_process(COMMAND dpkg-query -S ${ARGN}
        OUTPUT_VARIABLE owners RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "Some of these belong to no Debian package, so their licence is unknown: ${ARGN}")
    endif()
    string(REGEX MATCHALL "[^\n]+" owners "${owners}")
    list(TRANSFORM owners REPLACE "^([^:]+)(:[^:]+)?: .*$" "\\1")
    list(REMOVE_DUPLICATES owners)
    set(${result} "${owners}" PARENT_SCOPE)
endfunction()

function(copy_licence_of package)
    file(READ "/usr/share/doc/${package}/copyright" text)
    # In some packages the file is a link, so its contents are copied.
    file(WRITE "${licences}/${package}.txt" "${text}")

    string(REGEX MATCHALL "/common-licenses/[A-Za-z0-9.+-]*[A-Za-z0-9]" references "${text}")
    foreach(reference ${references})
        get_filename_component(name "${reference}" NAME)
        set(source "/usr/share/common-licenses/${name}")
        if(EXISTS "${source}")
            file(READ "${source}" text)
            file(WRITE "${licences}/general/${name}.txt" "${text}")
        endif()
    endforeach()
endfunction()

file(GLOB files "${folder}/lib/*")
file(GLOB_RECURSE plugins "${folder}/plugins/*.so")
list(APPEND files ${plugins})
list(TRANSFORM files REPLACE "^.*/" "*/")
find_packages(packages ${files} "${NVX_TRANSLATIONS_FOLDER}/qtbase_de.qm")
foreach(package ${packages})
    copy_licence_of("${package}")
endforeach()
