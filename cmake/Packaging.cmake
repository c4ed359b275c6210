# cmake --install, and the Debian package: cpack -G DEB in the build folder.
#
# The program and its files lie together in a folder of their own, because it looks for the template,
# the help, its helpers and the sample story beside itself; what people call is a link to it.
include(GNUInstallDirs)

set(program_folder ${CMAKE_INSTALL_LIBDIR}/lumenark)
install(TARGETS lumenark lumenark-import lumenark-metadata RUNTIME DESTINATION ${program_folder})
install(FILES
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Album.tpl
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lumenark.hlp
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lumenark_fr.hlp
  DESTINATION ${program_folder})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/help/ DESTINATION ${program_folder}/help
        FILES_MATCHING PATTERN *.jpg)
if(NOT LUMENARK_SANITIZE)
  install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/sample DESTINATION ${program_folder})
endif()
file(RELATIVE_PATH link_target
  /${CMAKE_INSTALL_BINDIR} /${program_folder}/lumenark)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
file(CREATE_LINK ${link_target} ${CMAKE_BINARY_DIR}/links/lumenark SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/links/lumenark DESTINATION ${CMAKE_INSTALL_BINDIR})

set(desktop ${CMAKE_SOURCE_DIR}/resources/desktop)
set(made ${CMAKE_BINARY_DIR}/desktop)
configure_file(${desktop}/lumenark.metainfo.xml.in
               ${made}/io.github.lumenark.Lumenark.metainfo.xml @ONLY)
configure_file(${desktop}/lumenark.1.in ${made}/lumenark.1 @ONLY)
install(FILES ${desktop}/lumenark.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/lumenark.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${made}/io.github.lumenark.Lumenark.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lumenark)

# Debian wants the manual page and the list of changes compressed, without a date in them.
find_program(GZIP gzip REQUIRED)
foreach(page ${made}/lumenark.1 ${desktop}/changelog)
  get_filename_component(name ${page} NAME)
  add_custom_command(OUTPUT ${made}/${name}.gz
    COMMAND ${GZIP} -9 -n -c ${page} > ${made}/${name}.gz
    DEPENDS ${page}
    VERBATIM)
  list(APPEND compressed_pages ${made}/${name}.gz)
endforeach()
add_custom_target(compressed_pages ALL DEPENDS ${compressed_pages})
install(FILES ${made}/lumenark.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${made}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lumenark)

set(drawing ${CMAKE_SOURCE_DIR}/resources/icons/lumenark.svg)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${drawing} DESTINATION ${icons}/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  set(picture ${CMAKE_BINARY_DIR}/icons/${size}/lumenark.png)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/icons/${size})
  add_custom_command(OUTPUT ${picture}
    COMMAND render_icon ${drawing} ${size} ${picture}
    DEPENDS render_icon ${drawing})
  list(APPEND icon_pictures ${picture})
  install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps)
endforeach()
add_custom_target(icon_pictures ALL DEPENDS ${icon_pictures})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumenark)
set(CPACK_PACKAGE_VENDOR "The Lumenark developers")
set(CPACK_PACKAGE_CONTACT "The Lumenark developers <lumenark@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "tell stories with photographs")
set(CPACK_PACKAGE_DESCRIPTION
  "Lumenark keeps an album of pictures that lie anywhere on the disk, describes
each of them, and holds a story of chapters and paragraphs. Each paragraph
chooses its own pictures. The story can be read, or left to play.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plug-ins that the program loads but does not link.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "qt6-image-formats-plugins, qt6-gtk-platformtheme, qt6-translations-l10n")
include(CPack)
