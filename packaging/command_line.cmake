# What people at a terminal expect of installed programs: manual pages, and completion.
file(GLOB manual_pages CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/man/*.1)
install(FILES ${manual_pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/completion/labelport.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME labelport
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/completion/_labelport
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/completion/labelport.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
    COMPONENT programs)
