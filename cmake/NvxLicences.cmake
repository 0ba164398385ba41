# Installs the licences of the shipped libraries into the folder "licences".
# Included by NvxInstall.

if(NOT WIN32)
    # Which of Debian's libraries are shipped is known only during the installation.
    install(CODE "set(NVX_TRANSLATIONS_FOLDER \"${NVX_QT_TRANSLATIONS}\")")
    install(SCRIPT "${CMAKE_CURRENT_LIST_DIR}/install_debian_licences.cmake")
    return()
endif()

# nvx_licences(FOLDER FILE...)
function(nvx_licences folder)
    foreach(file ${ARGN})
        if(NOT EXISTS "${file}")
            message(FATAL_ERROR "The licence ${file} is missing")
        endif()
    endforeach()
    install(FILES ${ARGN} DESTINATION "licences/${folder}")
endfunction()

set(qt_source "${NVX_CACHE}/qt-source")
nvx_licences(Qt
    "${qt_source}/LICENSES/LGPL-3.0-only.txt"
    "${qt_source}/LICENSES/GPL-3.0-only.txt"
    "${qt_source}/LICENSES/GPL-2.0-only.txt")

# FOLDER=LICENCE,...: third-party code in Qt's libraries, by its folder in Qt's sources.
set(third_parties
    corelib/text=UNICODE_LICENSE.txt
    corelib/tools=LICENSE.siphash
    gui/painting=QIMAGETRANSFORM_LICENSE.txt,XCONSORTIUM_LICENSE.txt
    gui/text=AGLFN_LICENSE.txt
    3rdparty/blake2=COPYING
    3rdparty/double-conversion=LICENSE
    3rdparty/easing=LICENSE
    3rdparty/freetype=LICENSE.txt,ZLIB-LICENSE.txt,BDF-LICENSE.txt,PCF-LICENSE.txt,docs/FTL.TXT,docs/GPLv2.TXT
    3rdparty/harfbuzz-ng=COPYING
    3rdparty/icc=LICENSE.txt
    3rdparty/libjpeg=LICENSE,ijg-license.txt,zlib-license.txt
    3rdparty/libpng=LICENSE
    3rdparty/md4c=LICENSE.md
    3rdparty/pcre2=LICENCE,LICENCE-SLJIT
    3rdparty/rfc6234=LICENSE
    3rdparty/sha3=BRG_ENDIAN_LICENSE,CC0_LICENSE
    3rdparty/tinycbor=LICENSE
    3rdparty/zlib=LICENSE)
foreach(party ${third_parties})
    string(REGEX MATCH "^(.*)=(.*)$" party "${party}")
    set(place "${CMAKE_MATCH_1}")
    string(REPLACE "," ";" names "${CMAKE_MATCH_2}")
    list(TRANSFORM names PREPEND "${qt_source}/src/${place}/")
    get_filename_component(folder "${place}" NAME)
    nvx_licences("Qt/${folder}" ${names})
endforeach()

nvx_licences(GCC /usr/share/doc/gcc-mingw-w64-base/copyright)
nvx_licences(mingw-w64 /usr/share/doc/mingw-w64-common/copyright)
nvx_licences("Qt translations" /usr/share/doc/qt6-translations-l10n/copyright)
configure_file("${PROJECT_SOURCE_DIR}/installer/licences.txt.in" "${CMAKE_BINARY_DIR}/licences.txt"
    @ONLY NEWLINE_STYLE DOS)
install(FILES "${CMAKE_BINARY_DIR}/licences.txt" DESTINATION licences RENAME readme.txt)
