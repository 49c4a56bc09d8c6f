# One golden-file test of the headless tool: runs it on a copy of INPUT, in a folder of its
# own, and compares the file it writes with EXPECTED byte for byte.
#   cmake -DCLI=<tool> -DINPUT=<file> -DEXPECTED=<file> -DWORK=<folder>
#         -DCOMMAND="resave;IN;OUT" (IN and OUT stand for the two files) -P cli_golden.cmake
# With -DERRORS=<file>, what the tool says on standard error is compared with that file too,
# the folder's name standing as WORK; -DMAILCONFIG=<file> gives the tool a mail account.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/home")
# Reading a file may write missing defaults back into it: the input stays untouched.
file(COPY_FILE "${INPUT}" "${WORK}/in.dko")

list(TRANSFORM COMMAND REPLACE "^IN$" "${WORK}/in.dko")
list(TRANSFORM COMMAND REPLACE "^OUT$" "${WORK}/out.dko")
list(TRANSFORM COMMAND REPLACE "^WORK/" "${WORK}/")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env "DESKO_HOME=${WORK}/home" "DESKO_MAIL_CONFIG=${MAILCONFIG}"
          "${CLI}" ${COMMAND}
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
if(ERRORS)
  string(REPLACE "${WORK}" "WORK" errors "${errors}")
  file(READ "${ERRORS}" expectedErrors)
  if(NOT errors STREQUAL expectedErrors)
    file(WRITE "${WORK}/errors.txt" "${errors}")
    message(FATAL_ERROR "${WORK}/errors.txt differs from ${ERRORS}")
  endif()
endif()
# The export's memory of the meeting requests it sent is all it may leave there.
file(GLOB left "${WORK}/home/*")
list(FILTER left EXCLUDE REGEX "/Desko40\\.requests$")
if(left)
  message(FATAL_ERROR "the tool left files in its folder: ${left}")
endif()
