# Cross-compiles for 64-bit Windows with Debian's mingw-w64. The Qt to link is the prefix in the environment variable
# ZANDROVE_QT_MINGW (scripts/windows/build-qt.sh makes one); Qt's build tools are the host's own.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT DEFINED ENV{ZANDROVE_QT_MINGW})
    message(FATAL_ERROR "ZANDROVE_QT_MINGW must name the folder of a Qt for mingw-w64; scripts/windows/build-qt.sh makes one")
endif()
file(REAL_PATH $ENV{ZANDROVE_QT_MINGW} ZANDROVE_QT_MINGW)

set(CMAKE_FIND_ROOT_PATH ${ZANDROVE_QT_MINGW} /usr/x86_64-w64-mingw32)
set(CMAKE_PREFIX_PATH ${ZANDROVE_QT_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")

# Where the compiler keeps the libraries that its programs need at run time.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++-6.dll
    OUTPUT_VARIABLE ZANDROVE_MINGW_RUNTIME OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(ZANDROVE_MINGW_RUNTIME ${ZANDROVE_MINGW_RUNTIME} DIRECTORY)

# CTest runs the programs under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/run.sh)
