# Lays out the licences of Debian's libraries among the files that were installed, as Debian ships them, and
# those of the general licences that they refer to.

set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(licences "${folder}/licences")

# The packages of the files; asked for in one call, since each one reads the lists of all packages.
function(find_packages answer)
    execute_process(COMMAND dpkg-query -S ${ARGN}
        OUTPUT_VARIABLE owners RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "Of some of these no Debian package, and so no licence, is known: ${ARGN}")
    endif()
    string(REGEX MATCHALL "[^\n]+" owners "${owners}")
    list(TRANSFORM owners REPLACE "^([^:]+)(:[^:]+)?: .*$" "\\1")
    list(REMOVE_DUPLICATES owners)
    set(${answer} "${owners}" PARENT_SCOPE)
endfunction()

function(copy_licence_of package)
    file(READ "/usr/share/doc/${package}/copyright" text)
    # Its own name is a link in some packages.
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
