# Installing and packaging: the program, its sound and print modules and its sounds in the system's places,
# with a menu entry, an icon and the metadata of software centres; `cpack` makes a .deb of it.
include(GNUInstallDirs)

set(CONTARELLO_ID org.example.contarello)
set(CONTARELLO_DATADIR ${CMAKE_INSTALL_DATADIR}/contarello)
set(CONTARELLO_MODULEDIR ${CMAKE_INSTALL_LIBDIR}/contarello)

# The program finds its files relative to itself, so the installed tree works under any prefix.
file(RELATIVE_PATH data_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/contarello)
file(RELATIVE_PATH modules_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/contarello)
target_sources(contarello PRIVATE app/paths.cpp app/paths.h)
target_compile_definitions(contarello PRIVATE CONTARELLO_DATA_FROM_BIN="${data_from_bin}"
    CONTARELLO_MODULES_FROM_BIN="${modules_from_bin}")

install(TARGETS contarello RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS contarello_sound contarello_print LIBRARY DESTINATION ${CONTARELLO_MODULEDIR})
install(FILES ${SOUND_FILES} DESTINATION ${CONTARELLO_DATADIR}/suoni)
install(FILES packaging/${CONTARELLO_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${CONTARELLO_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/${CONTARELLO_ID}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME contarello)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Nora Belli <contarello@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "esercizi sui numeri da 0 a 99 per bambini")
set(CPACK_PACKAGE_DESCRIPTION "Contarello propone a un bambino esercizi sui numeri da 0 a 99, in italiano:
contare avanti e indietro, il numero prima e dopo, confrontare e ordinare, decine e unità, i numeri
in parole, addizioni e sottrazioni in colonna. Stampa schede con la loro correzione.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://contarello.example.org)
# The Qt libraries come from the binaries' own links; what is loaded at run time is named here:
# the window system's plugin, the fonts the screens are laid out for, Qt's Italian texts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, fonts-liberation2, qt6-translations-l10n")
set(CPACK_STRIP_FILES ON)
include(CPack)

# The package is built from the normal build only: the sanitizer build's binaries are not shipped.
if(CONTARELLO_TESTS AND NOT CONTARELLO_SANITIZE)
    add_test(NAME install_tree COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/install/installed_tree.sh
        ${CMAKE_BINARY_DIR})
    add_test(NAME install_deb COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/install/debian_package.sh
        ${CMAKE_BINARY_DIR})
    set_tests_properties(install_tree install_deb PROPERTIES TIMEOUT 300)
endif()
