# The one place that says how a target of this project is compiled.

add_library(zandrove_options INTERFACE)
target_include_directories(zandrove_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(zandrove_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_KEYWORDS
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    ZANDROVE_VERSION="${PROJECT_VERSION}")
target_compile_options(zandrove_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
    $<$<BOOL:${ZANDROVE_WERROR}>:-Werror>)

# What reads frames of any peer on the network is built to stop at a smashed stack or buffer.
if(NOT WIN32)
    target_compile_options(zandrove_options INTERFACE
        $<$<CONFIG:Release>:-fstack-protector-strong>
        $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
    target_link_options(zandrove_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
endif()

if(ZANDROVE_SANITIZERS)
    target_compile_options(zandrove_options INTERFACE
        -fsanitize=${ZANDROVE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(zandrove_options INTERFACE -fsanitize=${ZANDROVE_SANITIZERS})
endif()

# What nearly every source reads first is read once: ZANDROVE_PRECOMPILED_HEADERS halves the time of a full build. The
# preset debug does without, so that a source that forgets an include is found. Tests have a set of their own, because
# they are compiled with other macros.
function(zandrove_precompile target from)
    if(NOT ZANDROVE_PRECOMPILED_HEADERS)
        return()
    endif()
    if(NOT TARGET ${from})
        file(WRITE ${CMAKE_BINARY_DIR}/${from}.cpp "")
        add_library(${from} OBJECT ${CMAKE_BINARY_DIR}/${from}.cpp)
        set_target_properties(${from} PROPERTIES AUTOMOC OFF)
        target_link_libraries(${from} PRIVATE zandrove_options Qt6::Core)
        target_compile_definitions(${from} PRIVATE ${ARGN})
        target_precompile_headers(${from} PRIVATE
            <QByteArray> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QHash> <QJsonArray> <QJsonObject> <QList> <QObject>
            <QString> <QStringList> <QThread> <QTimer> <QVariant> <algorithm> <functional> <memory> <optional> <utility>)
    endif()
    target_precompile_headers(${target} REUSE_FROM ${from})
    target_compile_options(${target} PRIVATE -fpch-preprocess) # so that ccache sees what lies in it
endfunction()

# zandrove_library(NAME SOURCES file... LINKS target...): one layer of the program, a static library.
function(zandrove_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC zandrove_options Qt6::Core ${ARG_LINKS})
    zandrove_precompile(${name} zandrove_headers)
endfunction()

# zandrove_test(NAME SOURCES file... LINKS target... [LOCK resource]): one QtTest executable, run by CTest. LOCK keeps
# tests that need the same machine-wide resource (the fixed ports) from running side by side.
function(zandrove_test name)
    cmake_parse_arguments(ARG "" "LOCK;TIMEOUT" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_compile_definitions(${name} PRIVATE QT_FORCE_ASSERTS)
    target_link_libraries(${name} PRIVATE
        zandrove_options zandrove_test_main Qt6::Core Qt6::Test zandrove_platform ${ARG_LINKS})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/harness)
    zandrove_precompile(${name} zandrove_test_headers QT_FORCE_ASSERTS)
    add_test(NAME ${name} COMMAND ${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    if(WIN32) # starting a program under Wine takes its time
        math(EXPR ARG_TIMEOUT "3 * ${ARG_TIMEOUT}")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT} LABELS unit ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    if(ARG_LOCK)
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK ${ARG_LOCK})
    endif()
endfunction()

# zandrove_windows_resources(TARGET DESCRIPTION text): on Windows the program gets its icon, its version and the manifest
# (per-monitor DPI, long paths, UTF-8, no elevation); elsewhere nothing.
function(zandrove_windows_resources target)
    if(NOT WIN32)
        return()
    endif()
    enable_language(RC)
    cmake_parse_arguments(ARG "" "DESCRIPTION" "" ${ARGN})
    get_target_property(ZANDROVE_RC_NAME ${target} OUTPUT_NAME)
    if(NOT ZANDROVE_RC_NAME)
        set(ZANDROVE_RC_NAME ${target})
    endif()
    set(ZANDROVE_RC_DESCRIPTION ${ARG_DESCRIPTION})
    configure_file(${CMAKE_SOURCE_DIR}/resources/windows/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_property(SOURCE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc APPEND PROPERTY OBJECT_DEPENDS
        "${CMAKE_SOURCE_DIR}/resources/icons/app.ico;${CMAKE_SOURCE_DIR}/resources/windows/program.manifest")
endfunction()

# Where the programs lie in an installation; what they look for beside themselves goes there too. On Windows everything
# lies in one folder.
include(GNUInstallDirs)
set(ZANDROVE_PROGRAM_FOLDER lib/zandrove)
if(WIN32)
    set(ZANDROVE_PROGRAM_FOLDER .)
endif()

# zandrove_install(TARGET): the program as a part of an installation, on Windows with everything that it needs beside the
# system. Elsewhere its name among the commands is a link, because what it looks for lies where the program itself is.
function(zandrove_install target)
    install(TARGETS ${target} RUNTIME DESTINATION ${ZANDROVE_PROGRAM_FOLDER})
    set_property(GLOBAL APPEND PROPERTY ZANDROVE_INSTALLED_TARGETS ${target})
    if(NOT WIN32)
        file(RELATIVE_PATH place ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${ZANDROVE_PROGRAM_FOLDER}/${target})
        file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/commands)
        file(CREATE_LINK ${place} ${CMAKE_CURRENT_BINARY_DIR}/commands/${target} SYMBOLIC)
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/commands/${target} DESTINATION ${CMAKE_INSTALL_BINDIR})
        return()
    endif()
    set(ZANDROVE_INSTALLED_PROGRAM $<TARGET_FILE:${target}>)
    configure_file(${CMAKE_SOURCE_DIR}/cmake/InstallLibraries.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.cmake.in @ONLY)
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}-libraries.cmake INPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.cmake.in)
    install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/${target}-libraries.cmake)
endfunction()
