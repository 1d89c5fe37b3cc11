# The Debian package: what lies in it beside the programs, and what it says of itself.

find_program(GZIP gzip)
find_program(RSVG_CONVERT rsvg-convert)
if(NOT GZIP OR NOT RSVG_CONVERT)
    message(STATUS "gzip and rsvg-convert were not both found: nothing but the programs is installed.")
    return()
endif()

include(${CMAKE_CURRENT_LIST_DIR}/Texts.cmake)

# The day of this version is that of its heading in the change log; before it has one, the day of the build.
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md heading REGEX "^## \\[${PROJECT_VERSION}\\] - [0-9-]+$")
if(heading MATCHES " - ([0-9-]+)$")
    set(release_day ${CMAKE_MATCH_1})
else()
    string(TIMESTAMP release_day %Y-%m-%d UTC)
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)

# format_day(FORMAT OUT): the release's day in a form that "date" knows, in English.
function(format_day format out)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date --utc --date=${release_day} +${format}
        OUTPUT_VARIABLE day OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(${out} ${day} PARENT_SCOPE)
endfunction()

format_day("%B %-d, %Y" release_day_manual)
format_day("%a, %d %b %Y %T %z" release_day_mail)
format_day("%Y" release_year)

set(made ${CMAKE_CURRENT_BINARY_DIR}/linux)
set(files)

# fill_in(NAME): the template NAME.in of this folder with the values of this build.
function(fill_in name)
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${name}.in ${made}/${name} @ONLY)
endfunction()

# install_compressed(FILE NAME DIRECTORY): the file as NAME.gz in DIRECTORY of an installation.
function(install_compressed file name directory)
    add_custom_command(OUTPUT ${made}/${name}.gz
        COMMAND sh -c "\"$0\" -9 --no-name <\"$1\" >\"$2\"" ${GZIP} ${file} ${made}/${name}.gz
        DEPENDS ${file} VERBATIM)
    install(FILES ${made}/${name}.gz DESTINATION ${directory})
    set(files ${files} ${made}/${name}.gz PARENT_SCOPE)
endfunction()

foreach(name copyright changelog zandrove-cli.1 ufw-profile firewalld-service.xml conffiles)
    fill_in(${name})
endforeach()
install(FILES ${made}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zandrove)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME zandrove)
install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog ${CMAKE_INSTALL_DATADIR}/doc/zandrove)
install_compressed(${made}/changelog changelog.Debian ${CMAKE_INSTALL_DATADIR}/doc/zandrove)
install_compressed(${made}/zandrove-cli.1 zandrove-cli.1 ${CMAKE_INSTALL_MANDIR}/man1)

# The two ports by one name, for the firewalls that know such names; opening them is up to the user.
install(FILES ${made}/firewalld-service.xml DESTINATION lib/firewalld/services RENAME zandrove.xml)
# ufw looks in /etc alone, which is no place for an installation below any other prefix.
install(CODE "
    if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
        file(INSTALL DESTINATION /etc/ufw/applications.d TYPE FILE RENAME zandrove FILES \"${made}/ufw-profile\")
    endif()")

if(TARGET zandrove)
    # By this name a Wayland desktop finds the entry of a window: the domain from behind, and the program.
    set(component example.zandrove.zandrove)
    foreach(name zandrove.1 zandrove.desktop zandrove.metainfo.xml)
        fill_in(${name})
    endforeach()
    install(FILES ${made}/zandrove.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications RENAME ${component}.desktop)
    install(FILES ${made}/zandrove.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME ${component}.metainfo.xml)
    install_compressed(${made}/zandrove.1 zandrove.1 ${CMAKE_INSTALL_MANDIR}/man1)

    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    set(drawing ${CMAKE_SOURCE_DIR}/resources/icons/app.svg)
    install(FILES ${drawing} DESTINATION ${icons}/scalable/apps RENAME zandrove.svg)
    foreach(size 16 24 32 48 64 128 256)
        add_custom_command(OUTPUT ${made}/zandrove-${size}.png
            COMMAND ${RSVG_CONVERT} --width=${size} --height=${size} --output=${made}/zandrove-${size}.png ${drawing}
            DEPENDS ${drawing} VERBATIM)
        list(APPEND files ${made}/zandrove-${size}.png)
        install(FILES ${made}/zandrove-${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME zandrove.png)
    endforeach()
endif()

add_custom_target(linux_package_files DEPENDS ${files})
add_dependencies(package_contents linux_package_files)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${summary_en}")
set(CPACK_PACKAGE_DESCRIPTION "${description_en}")
set(CPACK_DEBIAN_PACKAGE_NAME zandrove)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${made}/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
if(TARGET zandrove)
    # A window on Wayland takes a plug-in of Qt that no library names.
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
endif()
