# labelport_install_program(TARGET)
#
# Installs a program. It goes into a folder of its own together with what the importer's library
# expects beside a program, the symbol databases; the folder of programs gets a link to it.
set(LABELPORT_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/labelport)

function(labelport_install_program target)
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
        set(name ${target})
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION ${LABELPORT_PROGRAM_DIR} COMPONENT programs)

    # Relative, so that an installation can be moved.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBEXECDIR
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE libexec)
    set(link ${PROJECT_BINARY_DIR}/packaging/links/${name})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/links)
    file(CREATE_LINK ${libexec}/labelport/${name} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
endfunction()
