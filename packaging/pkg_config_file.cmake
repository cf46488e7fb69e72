# labelport.pc, with paths relative to where it stands.

cmake_path(SET pc_dir "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${pc_dir}"
    OUTPUT_VARIABLE LABELPORT_PC_TO_PREFIX)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
    OUTPUT_VARIABLE LABELPORT_PC_LIBDIR)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
    OUTPUT_VARIABLE LABELPORT_PC_INCLUDEDIR)

get_target_property(logging_type labelport_logging TYPE)
if(logging_type STREQUAL "INTERFACE_LIBRARY")
    set(LABELPORT_PC_LOGGING_CFLAGS "-I${LABELPORT_CUTELOGGER_INCLUDE}")
    set(LABELPORT_PC_LOGGING_LIBS "${LABELPORT_CUTELOGGER_LIBRARY}")
else()
    set(LABELPORT_PC_LOGGING_CFLAGS "-I\${includedir}/labelport/logging")
    set(LABELPORT_PC_LOGGING_LIBS "-llabelport-logging")
endif()

configure_file(${CMAKE_CURRENT_LIST_DIR}/labelport.pc.in
    ${PROJECT_BINARY_DIR}/packaging/labelport.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/labelport.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
