# Installs the build into a fresh prefix and checks that Desko stands there as a desktop
# program: both programs (the headless tool answering), the help pages, a valid desktop
# entry, the icon in every size of the icon theme, and the schedule files' type that the
# entry opens. Run as:
#   cmake -DBUILD=<build dir> -DPREFIX=<empty folder> -DHELP=<help sources> -P check_install.cmake
# With -DINSTALLED=ON it checks a prefix that is installed already, such as a package's /usr.

cmake_minimum_required(VERSION 3.25)

function(fail message)
  message(FATAL_ERROR "${message}")
endfunction()

if(NOT INSTALLED)
  file(REMOVE_RECURSE "${PREFIX}")
  execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    fail("cmake --install failed:\n${output}")
  endif()
endif()

set(share "${PREFIX}/share")
set(expected bin/desko40 bin/desko40-cli share/applications/desko40.desktop
  share/mime/packages/desko40.xml share/desko40/help/logo.png)
foreach(side 16 22 24 32 48 64 128 256 512)
  list(APPEND expected share/icons/hicolor/${side}x${side}/apps/desko40.png)
endforeach()
file(GLOB pages RELATIVE "${HELP}/pages" "${HELP}/pages/*.html")
list(APPEND pages desko.css)
foreach(page IN LISTS pages)
  list(APPEND expected share/desko40/help/${page})
endforeach()
foreach(file IN LISTS expected)
  if(NOT EXISTS "${PREFIX}/${file}")
    fail("not installed: ${file}")
  endif()
endforeach()

# Each icon is a PNG image.
foreach(side 16 48 512)
  file(READ "${share}/icons/hicolor/${side}x${side}/apps/desko40.png" signature LIMIT 8 HEX)
  if(NOT signature STREQUAL "89504e470d0a1a0a")
    fail("icon ${side}x${side} is not a PNG image")
  endif()
endforeach()

execute_process(COMMAND desktop-file-validate "${share}/applications/desko40.desktop"
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT status EQUAL 0 OR NOT output STREQUAL "")
  fail("desktop-file-validate refuses the desktop entry:\n${output}")
endif()

# The entry opens the type that the schedule files' pattern gives, with the file's name.
file(READ "${share}/applications/desko40.desktop" entry)
file(READ "${share}/mime/packages/desko40.xml" types)
string(REGEX MATCH "\nMimeType=([^;\n]+);" _ "${entry}")
set(type "${CMAKE_MATCH_1}")
if(NOT types MATCHES "<mime-type type=\"${type}\">.*<glob pattern=\"\\*\\.dko\"/>")
  fail("the desktop entry's type '${type}' is not the one of *.dko files:\n${types}")
endif()
if(NOT entry MATCHES "\nExec=desko40 %f\n")
  fail("the desktop entry does not start desko40 on the file it opens:\n${entry}")
endif()

execute_process(COMMAND "${PREFIX}/bin/desko40-cli" month 1996 1
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
if(NOT status EQUAL 0 OR NOT output STREQUAL "1 31 0\n")
  fail("the installed desko40-cli does not answer: ${status} ${output}${error}")
endif()
message(STATUS "Desko installs into ${PREFIX}")
