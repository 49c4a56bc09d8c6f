# A table of the headless tool's answers: each line not starting with # holds the arguments
# of one call, separated by |, a tab, and the line the tool prints, its fields separated by
# tabs; empty fields at the end may be left out.
#   cmake -DCLI=<tool> -DVERB=<command> -DTABLE=<file> -P cli_table.cmake
cmake_minimum_required(VERSION 3.25)

file(STRINGS "${TABLE}" rows ENCODING UTF-8)
set(failures "")
set(count 0)
foreach(row IN LISTS rows)
  if(row MATCHES "^#" OR row STREQUAL "")
    continue()
  endif()
  string(FIND "${row}" "\t" tab)
  string(SUBSTRING "${row}" 0 ${tab} given)
  math(EXPR rest "${tab} + 1")
  string(SUBSTRING "${row}" ${rest} -1 expected)
  string(REPLACE "|" ";" arguments "${given}")
  execute_process(COMMAND "${CLI}" ${VERB} ${arguments}
    OUTPUT_VARIABLE printed RESULT_VARIABLE status)
  string(REGEX REPLACE "[\t\n]+$" "" printed "${printed}")
  if(NOT status EQUAL 0 OR NOT printed STREQUAL expected)
    string(APPEND failures "\n  ${given}: printed \"${printed}\" (${status}), expected \"${expected}\"")
  endif()
  math(EXPR count "${count} + 1")
endforeach()
if(failures)
  message(FATAL_ERROR "${TABLE}:${failures}")
endif()
message(STATUS "${count} rows as expected")
