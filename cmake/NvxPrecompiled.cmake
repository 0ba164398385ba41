# Precompiled headers of Qt and the standard library, with what most sources include. Each source must still
# include what it uses, since NVX_PRECOMPILE may be off.
#
# A precompiled header can only be used with the same options and the same definitions that its contents
# depend on:
# Qt's test header depends on the linked modules of Qt. So there is one for each combination in use.

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
    # By default the command also names the header with its absolute path, which changes the hash of the
    # compiler cache.
    set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -Xclang -include-pch -Xclang <PCH_FILE>)
endif()

# For a compilation with a precompiled header, the compiler cache hashes the file .sum next to the header.
# Hashing the header itself, 150 MB, would take longer than most compilations, and clang writes the path of
# the checkout into it. So .sum is a hash of what the header is made from.
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

# nvx_precompiled_header(NAME MODULE LINKS TARGET... [HEADERS HEADER...]): an empty library with a precompiled
# header for other targets.
function(nvx_precompiled_header name module)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp")
    target_link_libraries(${name} PRIVATE Qt6::${module} nvx_options ${ARG_LINKS})
    set(headers ${nvx_core_headers} ${nvx_${module}_headers} ${ARG_HEADERS})
    target_precompile_headers(${name} PRIVATE ${headers})
    if(NVX_CCACHE)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
            # Another checkout would find it in the cache, and clang would not find this checkout's files
            # there.
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

# nvx_linked_targets(RESULT TARGET...): the targets and all targets that they link, directly or indirectly.
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

# nvx_precompile(): makes the libraries and test programs with Qt use precompiled headers. To be called after all
# of them have been declared, since a library may link one that is declared later.
function(nvx_precompile)
    foreach(kind LIBRARIES TESTS)
        get_property(targets GLOBAL PROPERTY NVX_${kind})
        foreach(target IN LISTS targets)
            nvx_linked_targets(linked ${target})
            if(NOT Qt6::Core IN_LIST linked)
                continue()
            endif()
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
