# "cpack -G DEB" makes three Debian packages: the programs, the library, and what building with it takes.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zanth-manager)
set(CPACK_PACKAGE_VENDOR "Tessel")
set(CPACK_PACKAGE_CONTACT "Tessel maintainers <maintainers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for CON files of a 1990s shooter")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
"Edits CON files, plain-text script and settings files, in tabs and colours,
changes the game's tunable values through a panel, randomizes them, edits the
maps and titles of levels, and converts user files from the 1.3D dialect to
1.4/1.5. The command tessel does the same without a window.")
# The programs find their data beside themselves, so the build can have another prefix.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL program)
if(TESSEL_QT)
  list(APPEND CPACK_COMPONENTS_ALL library development)
endif()
set(library_package libtessel${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME zanth-manager)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtessel-dev)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
"The editor control of Zanth Manager as a library, for other programs.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"What building with the library of Zanth Manager's editor control takes:
headers, files for CMake and pkg-config, and the plugin for Qt Designer.")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src/embed)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}), qt6-base-dev")
# The editor asks for a monospaced font, the library for the templates.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS fonts-dejavu-core)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS "fonts-dejavu-core, zanth-manager")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# What is built is packaged; cpack does not build.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
