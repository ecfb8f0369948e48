# What "cmake --install" and the package put in place, and where.
include(GNUInstallDirs)

set(desktop_in ${CMAKE_SOURCE_DIR}/desktop)
set(desktop_out ${CMAKE_BINARY_DIR}/desktop)

install(TARGETS zentrik zentrik-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY zoo sprites DESTINATION ${CMAKE_INSTALL_DATADIR}/zentrik
        FILES_MATCHING PATTERN "*.bot" PATTERN "*.svg" PATTERN "*.png")
install(FILES docs/manual.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR}
        FILES_MATCHING PATTERN "*.png" PATTERN "*.gif")
install(DIRECTORY docs/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} USE_SOURCE_PERMISSIONS)
configure_file(LICENSE ${desktop_out}/copyright COPYONLY)
foreach(carried font module)
  file(READ ${desktop_in}/${carried}-licence.txt licence)
  file(APPEND ${desktop_out}/copyright "\n----\n\n${licence}")
endforeach()
install(FILES ${desktop_out}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_file(${desktop_in}/zentrik.desktop.in ${desktop_out}/${ZENTRIK_ID}.desktop @ONLY)
configure_file(${desktop_in}/zentrik.metainfo.xml.in ${desktop_out}/${ZENTRIK_ID}.metainfo.xml @ONLY)
configure_file(${desktop_in}/zentrik.1.in ${desktop_out}/zentrik.1 @ONLY)
configure_file(${desktop_in}/zentrik-cli.1.in ${desktop_out}/zentrik-cli.1 @ONLY)
install(FILES ${desktop_in}/zentrik-cli.bash RENAME zentrik-cli
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${desktop_out}/${ZENTRIK_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop_out}/${ZENTRIK_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop_in}/zentrik.thumbnailer DESTINATION ${CMAKE_INSTALL_DATADIR}/thumbnailers)
install(FILES ${desktop_in}/zentrik-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME zentrik.xml)

# The icons of the program and of its files; the drawings, and pictures of them for who draws none.
add_executable(zentrik_draw_icons ${desktop_in}/draw_icons.cpp)
target_link_libraries(zentrik_draw_icons PRIVATE zentrik_flags Qt6::Gui Qt6::Svg)
set(hicolor ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(program_drawing ${CMAKE_SOURCE_DIR}/icons/zentrik.svg)
set(file_drawing ${desktop_in}/project-file.svg)
install(FILES ${program_drawing} DESTINATION ${hicolor}/scalable/apps RENAME ${ZENTRIK_ID}.svg)
install(FILES ${file_drawing} DESTINATION ${hicolor}/scalable/mimetypes
        RENAME application-x-zentrik-project.svg)
foreach(size 16 24 32 48 64 128 256)
  set(program_icon ${desktop_out}/${size}/${ZENTRIK_ID}.png)
  set(file_icon ${desktop_out}/${size}/application-x-zentrik-project.png)
  add_custom_command(OUTPUT ${program_icon} ${file_icon}
    COMMAND zentrik_draw_icons ${size} ${program_drawing} ${program_icon} ${file_drawing} ${file_icon}
    DEPENDS ${program_drawing} ${file_drawing} VERBATIM)
  list(APPEND drawn ${program_icon} ${file_icon})
  install(FILES ${program_icon} DESTINATION ${hicolor}/${size}x${size}/apps)
  install(FILES ${file_icon} DESTINATION ${hicolor}/${size}x${size}/mimetypes)
endforeach()

# Compressed without a time stamp, so that the same sources give the same files.
configure_file(${desktop_in}/changelog.Debian.in ${desktop_out}/changelog.Debian @ONLY)
configure_file(CHANGELOG.md ${desktop_out}/changelog COPYONLY)
find_program(GZIP_PROGRAM gzip REQUIRED)
foreach(text zentrik.1 zentrik-cli.1 changelog changelog.Debian)
  add_custom_command(OUTPUT ${desktop_out}/${text}.gz
    COMMAND ${GZIP_PROGRAM} -9nkf ${text} WORKING_DIRECTORY ${desktop_out}
    DEPENDS ${desktop_out}/${text} VERBATIM)
  list(APPEND drawn ${desktop_out}/${text}.gz)
endforeach()
install(FILES ${desktop_out}/zentrik.1.gz ${desktop_out}/zentrik-cli.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${desktop_out}/changelog.gz ${desktop_out}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
add_custom_target(zentrik_desktop ALL DEPENDS ${drawn})

set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_NAME zentrik)
set(CPACK_PACKAGE_VENDOR "The Zentrik authors")
set(CPACK_PACKAGE_CONTACT "The Zentrik authors <authors@zentrik.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for creatures made of springs and masses")
set(CPACK_PACKAGE_DESCRIPTION "Place nodes with the mouse, join them with links, let some of the links
drive the others like muscles, and watch your creature walk, roll, bounce or
fly apart. A toy, a teaching tool and a small physics laboratory.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${ZENTRIK_WEB_PAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
