# Runs PROGRAM and compares what it prints with the file EXPECTED.
set(ENV{LC_ALL} C)
execute_process(COMMAND "${PROGRAM}" OUTPUT_VARIABLE printed ERROR_VARIABLE complaint RESULT_VARIABLE status)
file(READ "${EXPECTED}" expected)
if(NOT status EQUAL 0 OR NOT printed STREQUAL expected)
  message(FATAL_ERROR "status ${status}\n${complaint}\nprinted:\n${printed}\nexpected:\n${expected}")
endif()
