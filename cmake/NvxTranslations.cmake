# The interface's translations. The target "translations" fills the folder NVX_LANGUAGES_FOLDER, whose
# contents are installed next to the programs:
#     LOCALE/NAME.qm       compiled from resource/languages/NAME_LOCALE.ts
#     LOCALE/qt_XX_YY.qm   Qt's own texts in that language, if Qt has them

set(NVX_LANGUAGES_FOLDER "${CMAKE_BINARY_DIR}/languages")

# Catalogues do not depend on the platform, so the tool and the texts of the building machine are used.
find_program(NVX_LRELEASE lrelease
    PATHS /usr/lib/qt6/bin NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(NVX_QT_TRANSLATIONS qtbase_en.qm
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

# nvx_qt_catalogue(LOCALE): copies Qt's texts in the language of a locale such as "de-DE" to the name that the
# programs expect ("qt_de_DE.qm"); adds the result to nvx_catalogues.
function(nvx_qt_catalogue locale)
    string(REPLACE "-" "_" language "${locale}")
    string(REGEX REPLACE "_.*" "" language_alone "${language}")
    find_file(source NAMES "qtbase_${language}.qm" "qtbase_${language_alone}.qm"
        PATHS "${NVX_QT_TRANSLATIONS}" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE)
    if(NOT source)
        message(STATUS "Qt has no texts for ${locale}: its own dialogs stay in English")
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
