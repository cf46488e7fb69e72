# Registers the window program and the labels' file types with the desktop.
install(FILES ${CMAKE_CURRENT_LIST_DIR}/desktop/labelport-workbench.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/desktop/org.labelport.Workbench.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/mime/labelport.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/icons/labelport-workbench.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
    COMPONENT programs)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/icons/labelport-label.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes
    COMPONENT programs)
