# The layout of an installation, and the files to build against it: the CMake package LabelPort
# (find_package) and the pkg-config file labelport.pc.
#
# Rooms install their own headers and targets, into the export set LabelPortTargets.

include(CMakePackageConfigHelpers)

set(LABELPORT_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/LabelPort)
set(LABELPORT_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/labelport)

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/LabelPortConfig.cmake.in
    ${PROJECT_BINARY_DIR}/packaging/LabelPortConfig.cmake
    INSTALL_DESTINATION ${LABELPORT_PACKAGE_DIR}
    PATH_VARS LABELPORT_HEADER_DIR
    NO_SET_AND_CHECK_MACRO)
# Before 1.0 the contract may change with every minor version.
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/packaging/LabelPortConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/packaging/LabelPortConfig.cmake
    ${PROJECT_BINARY_DIR}/packaging/LabelPortConfigVersion.cmake
    DESTINATION ${LABELPORT_PACKAGE_DIR}
    COMPONENT development)
install(EXPORT LabelPortTargets
    NAMESPACE LabelPort::
    DESTINATION ${LABELPORT_PACKAGE_DIR}
    COMPONENT development)

# The logging library is known only after its folder was processed.
cmake_language(EVAL CODE
    "cmake_language(DEFER CALL include [[${CMAKE_CURRENT_LIST_DIR}/pkg_config_file.cmake]])")

include(${CMAKE_CURRENT_LIST_DIR}/command_line.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/desktop.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
