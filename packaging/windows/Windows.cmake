# What lies beside the programs in an installation on Windows, and what the installer has to know. Both the zip and the
# installer are made of one folder that "cmake --install" has laid out: see scripts/windows/package.sh.

set(ZANDROVE_STAGE ${CMAKE_BINARY_DIR}/stage)
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-windows-x64)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALLED_DIRECTORIES ${ZANDROVE_STAGE} .)

set(readme_window "")
if(TARGET zandrove)
    string(CONCAT readme_window
        "zandrove.exe       the program. Start it on both PCs; it leads through the rest.\n\n")
    # What Qt loads by itself, and so no program names: the window system, its look, and pictures.
    foreach(plugin platforms/qwindows styles/qwindowsvistastyle iconengines/qsvgicon imageformats/qsvg imageformats/qico)
        get_filename_component(folder ${plugin} DIRECTORY)
        install(FILES ${ZANDROVE_QT_MINGW}/plugins/${plugin}.dll DESTINATION ${folder})
    endforeach()
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/README.txt.in ${CMAKE_CURRENT_BINARY_DIR}/README.txt @ONLY NEWLINE_STYLE CRLF)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION .)

# The libraries that go along are free software, and their terms go with them.
foreach(notice
        "Qt.txt=/usr/share/doc/libqt6core6/copyright"
        "Compiler libraries.txt=/usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright"
        "Threads library.txt=/usr/share/doc/mingw-w64-x86-64-dev/copyright"
        "LGPL-3.txt=/usr/share/common-licenses/LGPL-3"
        "GPL-3.txt=/usr/share/common-licenses/GPL-3")
    string(REGEX MATCH "^(.*)=(.*)$" matched ${notice})
    install(FILES ${CMAKE_MATCH_2} DESTINATION licenses RENAME ${CMAKE_MATCH_1})
endforeach()

# The ports of the firewall rules have one home, which is the program's.
foreach(protocol Tcp Udp)
    file(STRINGS ${CMAKE_SOURCE_DIR}/src/core/common/Records.h line REGEX "^constexpr quint16 ${protocol}Port = [0-9]+;$")
    if(NOT line MATCHES " = ([0-9]+)")
        message(FATAL_ERROR "Records.h does not say which ${protocol} port the program uses.")
    endif()
    set(${protocol}Port ${CMAKE_MATCH_1})
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/build.nsh.in ${CMAKE_CURRENT_BINARY_DIR}/build.nsh @ONLY)
