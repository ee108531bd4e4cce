# Where an installed program lies, and the packages made of it: cmake --install, cpack -G DEB, cpack -G TGZ.
if(NOT VELMORA_QT)
  return()
endif()

configure_file(packaging/velmora.6.in velmora.6 @ONLY)

install(TARGETS velmora BUNDLE DESTINATION .)
install(FILES ${CMAKE_BINARY_DIR}/VELMORA.HLP DESTINATION ${CMAKE_INSTALL_DATADIR}/velmora)
install(FILES packaging/velmora.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/example.velmora.Velmora.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES assets/pictures/icon.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME velmora.svg)
install(FILES ${CMAKE_BINARY_DIR}/velmora.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/velmora RENAME copyright)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME velmora)
set(CPACK_PACKAGE_VENDOR "the Velmora contributors")
set(CPACK_PACKAGE_CONTACT "the Velmora contributors <contributors@velmora.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://velmora.example/")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Found by no tool: the driver that reads the help file, and a font.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Velmora deals shoes of 1 to 8 decks under the rules of the casinos, takes bets for two seats,
lets you squeeze the cards open with the mouse, teaches what each side needs,
and follows every shoe on a marking card. There is only play money.")
include(CPack)
