# Debian packages, one for each component: `cpack -G DEB` in the build folder.
#
#   liblabelport0      component library        for programs that embed the importer
#   liblabelport-dev   component development    to build such programs
#   labelport          component programs       for everybody else

set(LABELPORT_PACKAGE_MAINTAINER "The LabelPort authors <labelport@localhost>" CACHE STRING
    "Who answers for the Debian packages: name <address>")

# A package is named for the binary interface, so that two of them can stand side by side.
set(library_package liblabelport${PROJECT_VERSION_MAJOR})
set(package_release 1)
set(package_version ${PROJECT_VERSION}-${package_release})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME labelport)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "importer of legacy label templates")
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
# The programs' libraries stand in the build folder when dependencies are looked up.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
"Reads label templates in three legacy formats and rebuilds each label, item
by item, on the canvas of the program that embeds it.

This package has the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblabelport-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${package_version}), qt6-base-dev (>= 6.4), qt6-svg-dev (>= 6.4)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"Reads label templates in three legacy formats and rebuilds each label, item
by item, on the canvas of the program that embeds it.

This package has the headers, the CMake package and the pkg-config file.")

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME labelport)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SHLIBDEPS ON)
# Symbols are kept in SQLite databases; Qt loads its driver only when it is asked for.
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS
    "${library_package} (= ${package_version}), libqt6sql6-sqlite")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS
    "fonts-liberation, fonts-dejavu-core, qt6-translations-l10n")
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION
"Imports legacy label templates, whole archives of them at a time, and writes
what they show as pictures, drawings, documents and labels that can be edited.

This package has the command line, a window to see, save, export and print
labels in, and a tool that lists what an import asks of its host.")

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

include(CPack)
