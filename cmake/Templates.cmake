# Where the templates are: for what is installed, and in the sources.
set(TESSEL_DATA_DIR "${CMAKE_INSTALL_FULL_DATADIR}/zanth-manager")
set(TESSEL_SOURCE_DATA_DIR "${PROJECT_SOURCE_DIR}/data")
file(RELATIVE_PATH TESSEL_DATA_FROM_PROGRAM ${CMAKE_INSTALL_FULL_BINDIR} ${TESSEL_DATA_DIR})

# A program of the build tree finds them from its own folder, as an installed one does: there are links to the
# sources at these places, and no program knows where it was built.
foreach(programs src/cli tests tests/fuzz docs/pictures)
  cmake_path(ABSOLUTE_PATH TESSEL_DATA_FROM_PROGRAM BASE_DIRECTORY ${PROJECT_BINARY_DIR}/${programs} NORMALIZE
    OUTPUT_VARIABLE link)
  cmake_path(IS_PREFIX PROJECT_BINARY_DIR ${link} inside)
  if(inside)
    cmake_path(GET link PARENT_PATH folder)
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK ${TESSEL_SOURCE_DATA_DIR} ${link} SYMBOLIC)
  endif()
endforeach()
