# labelport_run_path(TARGET FOLDER...)
#
# The folders in which an installed target finds its libraries, relative to its own folder, so that
# an installation can be moved. Builds use the same path: CMake would pad a separate one with an
# empty entry, and an empty entry means the current folder, so libraries of the same name in the
# current folder would be loaded.
function(labelport_run_path target)
    list(TRANSFORM ARGN PREPEND "$ORIGIN/" OUTPUT_VARIABLE folders)
    set_target_properties(${target} PROPERTIES
        INSTALL_RPATH "${folders}"
        BUILD_WITH_INSTALL_RPATH ON)
endfunction()

# labelport_install_program(TARGET)
#
# Installs a program in libexec, together with the symbol databases, which the importer's library
# expects in the program's folder. The folder of programs gets a link to it.
set(LABELPORT_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/labelport)

function(labelport_install_program target)
    get_target_property(name ${target} OUTPUT_NAME)
    if(NOT name)
        set(name ${target})
    endif()
    # In a build, the libraries are in the folder of the programs.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBEXECDIR}/labelport" OUTPUT_VARIABLE libraries)
    labelport_run_path(${target} . ${libraries})
    install(TARGETS ${target} RUNTIME DESTINATION ${LABELPORT_PROGRAM_DIR} COMPONENT programs)

    # Relative, so that an installation can be moved.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBEXECDIR
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE libexec)
    set(link ${PROJECT_BINARY_DIR}/packaging/links/${name})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/links)
    file(CREATE_LINK ${libexec}/labelport/${name} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programs)
endfunction()
