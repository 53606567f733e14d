# What is installed beside the programs: manual pages, completions, and what a desktop wants to know.
set(share ${CMAKE_CURRENT_SOURCE_DIR}/share)

install(FILES README.md CHANGELOG.md debian/copyright
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zanth-manager)
install(FILES docs/man/tessel.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${share}/completions/tessel.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME tessel)
install(FILES ${share}/completions/_tessel DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${share}/completions/tessel.fish
  DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
# The templates are used by "tessel new" too.
install(DIRECTORY ${TESSEL_SOURCE_DATA_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/zanth-manager)

if(TESSEL_QT)
  install(FILES docs/man/zanth-manager.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${share}/completions/zanth-manager.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zanth-manager)
  install(FILES ${share}/completions/_zanth-manager
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
  install(FILES ${share}/completions/zanth-manager.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
  install(FILES ${share}/zanth-manager.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${share}/zanth-manager.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${share}/org.zanthman.ZanthManager.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${share}/zanth-manager-mime.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME zanth-manager.xml)
endif()
