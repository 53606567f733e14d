# The embedding guide shows the very example that is built and run.
file(READ ${ROOT}/docs/embedding.md guide)
foreach(file main.cpp CMakeLists.txt)
  file(READ ${ROOT}/examples/embed/${file} shown)
  string(FIND "${guide}" "${shown}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "docs/embedding.md does not show examples/embed/${file} as it is")
  endif()
endforeach()
