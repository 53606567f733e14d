# What makes a flaw harder to use, and keeps the folders of the build out of the programs. It stands aside for
# the sanitizers, which watch the same things, and for builds that do not optimize, in which people debug.
option(TESSEL_HARDENING "Harden optimized builds" ON)

set(TESSEL_HARDENED 0)
if(TESSEL_HARDENING AND NOT TESSEL_SANITIZE)
  set(TESSEL_HARDENED $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
  set(hardening -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=./build)
  # Only some processors have it.
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fcf-protection=full TESSEL_HAS_CF_PROTECTION)
  if(TESSEL_HAS_CF_PROTECTION)
    list(APPEND hardening -fcf-protection=full)
  endif()
  add_compile_options("$<${TESSEL_HARDENED}:${hardening}>")
  add_link_options("$<${TESSEL_HARDENED}:LINKER:-z,relro,-z,now>")
  # A program of the build tree would else name the folder of each library that it uses.
  set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
endif()
