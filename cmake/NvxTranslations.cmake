# The interface's translations. The target "translations" lays the folder NVX_LANGUAGES_FOLDER out as the
# programs look for their languages beside themselves:
#     LOCALE/NAME.qm       compiled from resource/languages/NAME_LOCALE.ts
#     LOCALE/qt_XX_YY.qm   the toolkit's own texts in that language, where the toolkit has them
# install(DIRECTORY "${NVX_LANGUAGES_FOLDER}/") brings it beside the programs.

set(NVX_LANGUAGES_FOLDER "${CMAKE_BINARY_DIR}/languages")

# The catalogues are data: those of the building machine serve every build.
find_program(NVX_LRELEASE lrelease
    PATHS /usr/lib/qt6/bin NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(NVX_TOOLKIT_TRANSLATIONS qtbase_en.qm
    PATHS /usr/share/qt6/translations NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)

# nvx_catalogue(TS): compiles one TS file; adds its locale to nvx_locales and its result to nvx_catalogues.
function(nvx_catalogue ts)
    if(NOT ts MATCHES "/([^/_]+)_([^/_]+)\\.ts$")
        message(FATAL_ERROR "${ts} is not named NAME_LOCALE.ts")
    endif()
    set(locale "${CMAKE_MATCH_2}")
    set(qm "${NVX_LANGUAGES_FOLDER}/${locale}/${CMAKE_MATCH_1}.qm")
    add_custom_command(OUTPUT "${qm}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${NVX_LANGUAGES_FOLDER}/${locale}"
        COMMAND ${NVX_LRELEASE} -silent "${ts}" -qm "${qm}"
        DEPENDS "${ts}"
        VERBATIM)
    set(nvx_locales ${nvx_locales} ${locale} PARENT_SCOPE)
    set(nvx_catalogues ${nvx_catalogues} "${qm}" PARENT_SCOPE)
endfunction()

# nvx_toolkit_catalogue(LOCALE): copies the toolkit's texts in the language of a locale ("de-DE"), named as
# the programs look for them ("qt_de_DE.qm"); adds the result to nvx_catalogues.
function(nvx_toolkit_catalogue locale)
    string(REPLACE "-" "_" language "${locale}")
    string(REGEX REPLACE "_.*" "" language_alone "${language}")
    find_file(source NAMES "qtbase_${language}.qm" "qtbase_${language_alone}.qm"
        PATHS "${NVX_TOOLKIT_TRANSLATIONS}" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE)
    if(NOT source)
        message(STATUS "The toolkit has no texts for ${locale}: its own boxes stay in English there")
        return()
    endif()
    set(qm "${NVX_LANGUAGES_FOLDER}/${locale}/qt_${language}.qm")
    add_custom_command(OUTPUT "${qm}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${NVX_LANGUAGES_FOLDER}/${locale}"
        COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${qm}"
        DEPENDS "${source}"
        VERBATIM)
    set(nvx_catalogues ${nvx_catalogues} "${qm}" PARENT_SCOPE)
endfunction()
