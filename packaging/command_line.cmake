# Manual pages and completion. Those of labelport are generated from its option table.
file(GLOB manual_pages CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/man/*.1)
install(FILES ${manual_pages} ${PROJECT_BINARY_DIR}/command_line/labelport.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programs)
install(FILES ${PROJECT_BINARY_DIR}/command_line/labelport.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME labelport
    COMPONENT programs)
install(FILES ${PROJECT_BINARY_DIR}/command_line/_labelport
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
    COMPONENT programs)
install(FILES ${PROJECT_BINARY_DIR}/command_line/labelport.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
    COMPONENT programs)
