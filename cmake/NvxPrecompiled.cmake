# Precompiled headers of Qt and of the standard library: what most sources include, read once for a build. Sources
# include what they use all the same, for NVX_PRECOMPILE may be off.
#
# A header precompiled serves only compilations with the same options and the same definitions that it looks at:
# Qt's test header looks at which modules of Qt are linked. So there is one for each combination in use.

set(nvx_core_headers
    <algorithm> <array> <functional> <memory> <optional> <string> <string_view> <utility> <vector>
    <QBuffer> <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QElapsedTimer> <QFile> <QFileInfo> <QHash> <QList>
    <QMap> <QProcess> <QRegularExpression> <QSet> <QSettings> <QString> <QStringList> <QTextStream> <QTimer>
    <QXmlStreamReader> <QXmlStreamWriter>)
set(nvx_Widgets_headers
    <QAction> <QApplication> <QCheckBox> <QClipboard> <QComboBox> <QHeaderView> <QLabel> <QLineEdit> <QMainWindow>
    <QMenu> <QMenuBar> <QMessageBox> <QPushButton> <QStatusBar> <QTableView> <QToolBar> <QWizard>)
set(nvx_Gui_headers <QGuiApplication>)
set(nvx_Core_headers)

if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # By default the header is named too, with its whole path, which the compiler cache would take for a difference.
    set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -Xclang -include-pch -Xclang <PCH_FILE>)
endif()

# A compilation with a precompiled header is found in the compiler cache by what stands in the file .sum beside the
# header: reading 150 MB each time would take longer than most of what the cache saves, and what clang precompiles
# holds the path of the checkout. So .sum holds what the header is made of.
if(NVX_CCACHE)
    get_target_property(qt_headers Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)
    list(FILTER qt_headers INCLUDE REGEX "QtCore$")
    cmake_path(GET qt_headers PARENT_PATH qt_headers)
    file(GLOB qt_headers "${qt_headers}/Qt*/q*.h")
    set(nvx_header_contents "")
    foreach(header IN LISTS qt_headers)
        file(SHA256 "${header}" contents)
        string(APPEND nvx_header_contents "${contents}")
    endforeach()
endif()

# nvx_precompiled_header(NAME MODULE LINKS TARGET... [HEADERS HEADER...]): a library without contents whose
# precompiled header others use.
function(nvx_precompiled_header name module)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp")
    target_link_libraries(${name} PRIVATE Qt6::${module} nvx_options ${ARG_LINKS})
    set(headers ${nvx_core_headers} ${nvx_${module}_headers} ${ARG_HEADERS})
    target_precompile_headers(${name} PRIVATE ${headers})
    if(NVX_CCACHE)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
            # It would be found by another checkout, in which clang misses this one's files.
            set_target_properties(${name} PROPERTIES CXX_COMPILER_LAUNCHER "")
            set(suffix pch)
        else()
            set(suffix gch)
        endif()
        string(SHA256 sum "${name} ${headers} ${nvx_header_contents}")
        file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/CMakeFiles/${name}.dir/cmake_pch.hxx.${suffix}.sum"
            CONTENT "${sum}" @ONLY)
    endif()
endfunction()

# nvx_linked_targets(RESULT TARGET...): the targets, all that they link, and all that these link.
function(nvx_linked_targets result)
    set(found)
    set(next ${ARGN})
    while(next)
        list(POP_FRONT next target)
        if(NOT TARGET ${target} OR target IN_LIST found)
            continue()
        endif()
        list(APPEND found ${target})
        foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
            get_target_property(links ${target} ${property})
            if(links)
                list(APPEND next ${links})
            endif()
        endforeach()
    endwhile()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# nvx_precompile(): lets the libraries and the test programs use precompiled headers. Called when all of them are
# declared, for a library may link one that is declared after it.
function(nvx_precompile)
    foreach(kind LIBRARIES TESTS)
        get_property(targets GLOBAL PROPERTY NVX_${kind})
        foreach(target IN LISTS targets)
            nvx_linked_targets(linked ${target})
            set(module Core)
            if(Qt6::Widgets IN_LIST linked)
                set(module Widgets)
            elseif(Qt6::Gui IN_LIST linked AND kind STREQUAL TESTS)
                set(module Gui)
            endif()
            string(TOLOWER nvx_precompiled_${module}_${kind} header)
            if(NOT TARGET ${header})
                if(kind STREQUAL TESTS)
                    nvx_precompiled_header(${header} ${module} LINKS Qt6::Test nvx_test_options HEADERS <QTest>)
                else()
                    nvx_precompiled_header(${header} ${module})
                endif()
            endif()
            target_precompile_headers(${target} REUSE_FROM ${header})
        endforeach()
    endforeach()
endfunction()
