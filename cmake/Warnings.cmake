# Warnings are errors in everything that is written here. GCC 12's flow analysis of std::optional and
# std::string under optimization reports what cannot happen, so -Wmaybe-uninitialized stays off.
add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  -Wcast-align -Wunused -Wformat=2 -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-maybe-uninitialized)
endif()
