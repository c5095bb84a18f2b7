# Installing and packaging: the program, its sound and print modules and its sounds in the system's places,
# with a menu entry, an icon, the metadata of software centres, a manual page, the licence and the
# changelog; `cpack` makes a .deb of it that lintian accepts.
include(GNUInstallDirs)

set(CONTARELLO_ID org.example.contarello)
set(CONTARELLO_DATADIR ${CMAKE_INSTALL_DATADIR}/contarello)
set(CONTARELLO_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/contarello)
# The modules are the program's own, not libraries for others: they lie in a folder of the
# architecture's library folder, where the dynamic linker's cache never looks, so installing and
# removing the package calls no ldconfig.
if(CMAKE_LIBRARY_ARCHITECTURE)
    set(CONTARELLO_MODULEDIR lib/${CMAKE_LIBRARY_ARCHITECTURE}/contarello)
else()
    set(CONTARELLO_MODULEDIR ${CMAKE_INSTALL_LIBDIR}/contarello)
endif()

# The program finds its files relative to itself, so the installed tree works under any prefix.
file(RELATIVE_PATH data_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/contarello)
file(RELATIVE_PATH modules_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${CONTARELLO_MODULEDIR})
target_sources(contarello PRIVATE app/paths.cpp app/paths.h)
target_compile_definitions(contarello PRIVATE CONTARELLO_DATA_FROM_BIN="${data_from_bin}"
    CONTARELLO_MODULES_FROM_BIN="${modules_from_bin}")

# The modules call nothing of the C library by name, so the linker, which links only what is used,
# leaves it out; named, it is always set up before a module's own start-up code runs.
# (Handed to the linker itself: the compiler would move a plain -lc to the end.)
foreach(module ${CONTARELLO_MODULES})
    target_link_options(${module} PRIVATE LINKER:--push-state,--no-as-needed,-lc,--pop-state)
endforeach()

# The changelog and the manual page go compressed, without a name or a time in the header, so
# that the same sources make the same package.
find_program(GZIP gzip REQUIRED)
set(compressed)
foreach(file changelog contarello.1)
    add_custom_command(OUTPUT packaging/${file}.gz
        COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/packaging/${file} packaging/${file}
        COMMAND ${GZIP} -9nf packaging/${file}
        DEPENDS packaging/${file} VERBATIM)
    list(APPEND compressed ${CMAKE_CURRENT_BINARY_DIR}/packaging/${file}.gz)
endforeach()
add_custom_target(packaging_docs ALL DEPENDS ${compressed})

install(TARGETS contarello RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS ${CONTARELLO_MODULES} LIBRARY DESTINATION ${CONTARELLO_MODULEDIR})
install(FILES ${SOUND_FILES} DESTINATION ${CONTARELLO_DATADIR}/suoni)
install(FILES packaging/${CONTARELLO_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${CONTARELLO_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/${CONTARELLO_ID}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/contarello.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/copyright ${CMAKE_CURRENT_BINARY_DIR}/packaging/changelog.gz
    DESTINATION ${CONTARELLO_DOCDIR})
install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME contarello)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME contarello)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
# The project answers for the package, not one of its people.
set(CPACK_PACKAGE_CONTACT "Progetto Contarello <contarello@example.org>")
# Italian first, the program's language, then the same in English; lines within 80 characters.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "esercizi sui numeri da 0 a 99 per bambini")
file(READ ${CMAKE_CURRENT_SOURCE_DIR}/packaging/description CPACK_PACKAGE_DESCRIPTION)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/description)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://contarello.example.org)
# The Qt libraries come from the binaries' own links; what is loaded at run time is named here:
# the window system's plugin, the fonts the screens are laid out for, Qt's Italian texts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, fonts-liberation2, qt6-translations-l10n")
# The voice, off unless turned on, speaks through the speech service and its Italian voices; without
# them the program installs and runs, silent.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "qt6-speech-speechd-plugin, speech-dispatcher, speech-dispatcher-espeak-ng")
set(CPACK_STRIP_FILES ON)
include(CPack)

# The package is built from the normal build only: the sanitizer build's binaries are not shipped.
if(CONTARELLO_TESTS AND NOT CONTARELLO_SANITIZE)
    add_test(NAME install_tree COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/install/installed_tree.sh
        ${CMAKE_BINARY_DIR})
    add_test(NAME install_deb COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/install/debian_package.sh
        ${CMAKE_BINARY_DIR})
    add_test(NAME install_lintian COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/install/lintian.sh
        ${CMAKE_BINARY_DIR})
    set_tests_properties(install_tree install_deb install_lintian PROPERTIES TIMEOUT 300)
endif()
