# "cpack -G DEB" makes a Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zanth-manager)
set(CPACK_PACKAGE_VENDOR "Tessel")
set(CPACK_PACKAGE_CONTACT "Tessel maintainers <maintainers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for CON files of a 1990s shooter")
set(CPACK_PACKAGE_DESCRIPTION
"Edits CON files, plain-text script and settings files, in tabs and colours,
changes the game's tunable values through a panel, randomizes them, edits the
maps and titles of levels, and converts user files from the 1.3D dialect to
1.4/1.5. The command tessel does the same without a window.")
# The programs find their data beside themselves, so the build can have another prefix.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The editor asks for a monospaced font.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# What is built is packaged; cpack does not build.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
