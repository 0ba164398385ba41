# Toolchain of the 64-bit Windows build: mingw-w64 with posix threads, and Qt for Windows, which tools/setup
# builds into the cache folder ($NVX_CACHE, or nvx in the user's cache folder).

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(DEFINED ENV{NVX_CACHE})
    set(NVX_CACHE "$ENV{NVX_CACHE}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(NVX_CACHE "$ENV{XDG_CACHE_HOME}/nvx")
else()
    set(NVX_CACHE "$ENV{HOME}/.cache/nvx")
endif()
set(NVX_QT_WINDOWS "${NVX_CACHE}/qt-windows")

set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_PREFIX_PATH "${NVX_QT_WINDOWS}")
set(CMAKE_FIND_ROOT_PATH "${NVX_QT_WINDOWS}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# CTest runs the Windows test programs under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/wine-run")
