# Warnings are errors in everything that is written here.
add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
  -Wcast-align -Wunused -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough -Werror)
