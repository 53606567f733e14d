# The embedding guide shows the very program that is built and run here.
file(READ ${ROOT}/docs/embedding.md guide)
file(READ ${ROOT}/examples/embed/main.cpp program)
string(FIND "${guide}" "${program}" at)
if(at EQUAL -1)
  message(FATAL_ERROR "docs/embedding.md does not show examples/embed/main.cpp as it is")
endif()
execute_process(COMMAND timeout 2 ${EXAMPLE} ${ROOT}/data/zmuser.dat RESULT_VARIABLE result ERROR_VARIABLE errors)
# It runs until somebody closes it: only the clock ends it here.
if(NOT result EQUAL 124)
  message(FATAL_ERROR "the example ended by itself: ${result} ${errors}")
endif()
