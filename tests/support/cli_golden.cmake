# One golden-file test of the headless tool: runs it on a copy of INPUT, in a folder of its
# own, and compares the file it writes with EXPECTED byte for byte.
#   cmake -DCLI=<tool> -DINPUT=<file> -DEXPECTED=<file> -DWORK=<folder>
#         -DCOMMAND="resave;IN;OUT" (IN and OUT stand for the two files) -P cli_golden.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/home")
# Reading a file may write missing defaults back into it: the input stays untouched.
file(COPY_FILE "${INPUT}" "${WORK}/in.dko")

list(TRANSFORM COMMAND REPLACE "^IN$" "${WORK}/in.dko")
list(TRANSFORM COMMAND REPLACE "^OUT$" "${WORK}/out.dko")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env "DESKO_HOME=${WORK}/home" "${CLI}" ${COMMAND}
  RESULT_VARIABLE status
  ERROR_VARIABLE errors)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the tool ended with ${status}: ${errors}")
endif()
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E compare_files "${WORK}/out.dko" "${EXPECTED}"
  RESULT_VARIABLE differ)
if(NOT differ EQUAL 0)
  message(FATAL_ERROR "${WORK}/out.dko differs from ${EXPECTED}")
endif()
file(GLOB left "${WORK}/home/*")
if(left)
  message(FATAL_ERROR "the tool left files in its folder: ${left}")
endif()
