# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# Runs the help compiler in the present folder on the sources behind "--". It reports a broken link
# or a missing page in words and yet succeeds, so its words are what counts.
set(sources "")
set(behind FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(i RANGE ${last})
  if(behind)
    list(APPEND sources ${CMAKE_ARGV${i}})
  elseif(CMAKE_ARGV${i} STREQUAL "--")
    set(behind TRUE)
  endif()
endforeach()

file(COPY ${sources} DESTINATION .)
file(REMOVE orvalis.chm)
execute_process(COMMAND ${CHMCMD} orvalis.hhp
  OUTPUT_VARIABLE words ERROR_VARIABLE words RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR words MATCHES "Error|Warning|not found|Can't" OR NOT EXISTS orvalis.chm)
  message(FATAL_ERROR "The help could not be compiled:\n${words}")
endif()
