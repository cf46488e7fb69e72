# Debian packages, one for each component: `cpack -G DEB` in the build folder.
#
#   liblabelport0      component library        for programs that embed the importer
#   liblabelport-dev   component development    to build such programs
#   labelport          component programs       for users

# The default address is a placeholder: example.org is a reserved domain.
set(LABELPORT_PACKAGE_MAINTAINER "The LabelPort authors <labelport@example.org>" CACHE STRING
    "Maintainer of the Debian packages: name <address>")

# Named after the binary interface, so that two versions can be installed side by side.
set(library_package liblabelport${PROJECT_VERSION_MAJOR})
set(package_release 1)
set(package_version ${PROJECT_VERSION}-${package_release})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME labelport)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VENDOR "The LabelPort authors")
set(CPACK_PACKAGE_CONTACT "${LABELPORT_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library development programs)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/compress_documents.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${package_release})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${LABELPORT_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SOURCE labelport)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Dependencies are determined while the programs' libraries are in the build folder.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
# Qt loads its SVG plug-in only for a picture that needs it.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "libqt6svg6 (>= 6.4)")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
# The trigger updates the linker's cache. CPack adds scripts that do the same, unless a file of
# their name is listed; a missing file is skipped.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_LIST_DIR}/debian/triggers
    ${CMAKE_CURRENT_LIST_DIR}/debian/none/postinst
    ${CMAKE_CURRENT_LIST_DIR}/debian/none/postrm)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
"importer of legacy label templates (library)
Reads label templates in three legacy formats and rebuilds each label, item
by item, on the canvas of the program that embeds it.

This package contains the shared library, for programs that embed the importer.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblabelport-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${package_version}), qt6-base-dev (>= 6.4), qt6-svg-dev (>= 6.4)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"importer of legacy label templates (development files)
Reads label templates in three legacy formats and rebuilds each label, item
by item, on the canvas of the program that embeds it.

This package contains the headers, the CMake package, the pkg-config file and
the guide for programs that embed the importer.")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME labelport)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SHLIBDEPS ON)
# Symbols are in SQLite databases; Qt loads the driver at run time, so it is not detected.
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS
    "${library_package} (= ${package_version}), libqt6sql6-sqlite")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS
    "cups-client, fonts-liberation, fonts-dejavu-core, qt6-image-formats-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION
"import legacy label templates, view and convert them
Imports legacy label templates, whole archives of them at a time, and writes
what they show as pictures, drawings, documents and labels that can be edited.

This package contains the command line program, a window that shows, saves,
exports and prints labels, a tool that traces an import, the user guides and
sample labels.")

foreach(package IN ITEMS library development programs)
    string(TOUPPER ${package} key)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME})
    install(FILES
        ${CMAKE_CURRENT_LIST_DIR}/debian/copyright
        DESTINATION ${folder} COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md
        DESTINATION ${folder} RENAME changelog COMPONENT ${package} EXCLUDE_FROM_ALL)
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/debian/changelog
        DESTINATION ${folder} RENAME changelog.Debian COMPONENT ${package} EXCLUDE_FROM_ALL)
endforeach()

# Manuals and samples.
install(FILES
    ${PROJECT_SOURCE_DIR}/docs/user-guide.md
    ${PROJECT_SOURCE_DIR}/docs/workbench.md
    ${PROJECT_SOURCE_DIR}/docs/migration-report.md
    ${PROJECT_SOURCE_DIR}/docs/recipes.md
    ${PROJECT_SOURCE_DIR}/docs/label-format.md
    ${PROJECT_SOURCE_DIR}/docs/trace.md
    ${PROJECT_SOURCE_DIR}/docs/report.schema.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/labelport COMPONENT programs)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/formats ${PROJECT_SOURCE_DIR}/docs/images
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/labelport COMPONENT programs)
install(FILES ${PROJECT_SOURCE_DIR}/docs/host-guide.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/liblabelport-dev COMPONENT development)
foreach(format IN ITEMS tavrel orvanta opendocument)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples/${format}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/labelport/examples COMPONENT programs
        FILES_MATCHING
            PATTERN *.cnv PATTERN *.roc PATTERN *.qmtx PATTERN *.odt PATTERN *.odg)
endforeach()

include(CPack)
