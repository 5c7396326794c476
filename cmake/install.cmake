# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` lays out, in the standard folders below the prefix.
set(app_id io.github.idrova.Idrova)

# Manual pages and the Debian changelog are installed packed, as distributions expect them.
find_program(GZIP gzip)
function(install_packed source folder name)
    if(NOT GZIP)
        install(FILES ${source} DESTINATION ${folder} RENAME ${name})
        return()
    endif()
    set(packed ${PROJECT_BINARY_DIR}/packed/${name}.gz)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packed)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    # -n leaves out name and time: the same input gives the same file.
    execute_process(COMMAND ${GZIP} -9nc INPUT_FILE ${PROJECT_SOURCE_DIR}/${source}
        OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${packed} DESTINATION ${folder})
endfunction()

foreach(program IN ITEMS idrova idrova-calc)
    if(TARGET ${program})
        install(TARGETS ${program} DESTINATION ${CMAKE_INSTALL_BINDIR})
        install_packed(packaging/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${program}.1)
    endif()
endforeach()

set(shared ${CMAKE_INSTALL_DATADIR}/idrova)
install(DIRECTORY data/IMG DESTINATION ${shared})
install(DIRECTORY data/samples DESTINATION ${shared} OPTIONAL)
install(FILES data/fluidi.dat data/pompe.dat data/percon.dat DESTINATION ${shared})

install(FILES packaging/${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/${app_id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME ${app_id}.xml)

set(icons ${CMAKE_INSTALL_DATADIR}/icons)
install(DIRECTORY data/icons/hicolor DESTINATION ${icons})
install(FILES data/icons/idrova.svg DESTINATION ${icons}/hicolor/scalable/apps
    RENAME ${app_id}.svg)
install(FILES data/icons/project.svg DESTINATION ${icons}/hicolor/scalable/mimetypes
    RENAME application-x-idrova.svg)

install(FILES README.md packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(TARGET ui)
    install(FILES ${manual_pdf} DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
install_packed(packaging/debian/changelog ${CMAKE_INSTALL_DOCDIR} changelog.Debian)
