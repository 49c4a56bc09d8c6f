# Puts a help page's body into the frame that every page shares: the head, the logo and the
# contents bar. The body's first line names its title: <!-- title: ... -->. Run as:
#   cmake -DFRAME=page.html.in -DBODY=pages/x.html -DOUT=x.html -P assemble.cmake

cmake_minimum_required(VERSION 3.25)

file(READ "${FRAME}" page)
file(READ "${BODY}" body)
if(NOT body MATCHES "^<!-- title: ([^\n]*) -->\n")
  message(FATAL_ERROR "${BODY} does not begin with its title")
endif()
set(title "${CMAKE_MATCH_1}")
string(FIND "${body}" "\n" end)
math(EXPR start "${end} + 1")
string(SUBSTRING "${body}" ${start} -1 body)
string(REPLACE "@title@" "${title}" page "${page}")
string(REPLACE "@body@" "${body}" page "${page}")
file(WRITE "${OUT}" "${page}")
