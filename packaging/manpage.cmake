# manpage.cmake -- makes a manual page: fills in the version, and from the help of stratavue-batch the usage, the jobs
# and the options, so that the page says what the program knows.
#
#   cmake -DIN=page.1.in -DOUT=page.1 -DVERSION=1.0 -DDATE=2026-01-31 -DSHARED=DIR [-DPROGRAM=stratavue-batch]
#         -P manpage.cmake
if(PROGRAM)
  execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
endif()

# Brackets and semicolons mean something in a list; here they are letters.
string(REPLACE ";" "\\;" help "${help}")
string(REPLACE "[" "<" help "${help}")
string(REPLACE "]" ">" help "${help}")
string(REPLACE "\n" ";" lines "${help}")

# An option and its word, as a page shows them.
function(marked_up text result)
  string(REPLACE "-" "\\-" text "${text}")
  string(REGEX REPLACE "(\\\\-\\\\-[a-z-]+) ([A-Z0-9|]+)" "\\\\fB\\1\\\\fP\\\\~\\\\fI\\2\\\\fP" text "${text}")
  string(REPLACE "<" "[" text "${text}")
  string(REPLACE ">" "]" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

set(part "")
foreach(line IN LISTS lines)
  if(line MATCHES "^([A-Z][a-z]+):$")
    set(part ${CMAKE_MATCH_1})
  elseif(part STREQUAL "Usage" AND line MATCHES "^  stratavue-batch ([a-z0-9-]+) ?(.*)$")
    set(job ${CMAKE_MATCH_1})
    marked_up("${CMAKE_MATCH_2}" words)
    string(REPLACE " [" "\n[" words "${words}")
    string(REGEX REPLACE "\n(\\[[^[\n]*)\n\\[([^]\n]*\\]\\])" "\n\\1 [\\2" words "${words}")
    string(REGEX REPLACE "\\] ([A-Z])" "]\n\\1" words "${words}")
    string(APPEND SYNOPSIS ".SY stratavue\\-batch\n.B ${job}\n${words}\n.YS\n")
  elseif(part STREQUAL "Jobs" AND line MATCHES "^  ([a-z0-9-]+) +(.*)$")
    string(APPEND JOBS ".TP\n.B ${CMAKE_MATCH_1}\n${CMAKE_MATCH_2}\n")
  elseif(part STREQUAL "Options" AND line MATCHES "^  (--[a-z-]+ [A-Z0-9|]+|--[a-z-]+) +(.*)$")
    set(words "${CMAKE_MATCH_2}")
    marked_up("${CMAKE_MATCH_1}" option)
    string(REPLACE "--" "\\-\\-" words "${words}")
    string(APPEND OPTIONS ".TP\n${option}\n${words}\n")
  elseif(part MATCHES "Jobs|Options" AND line MATCHES "^   +(.*)$")
    string(TOUPPER ${part} part_in_page)
    string(APPEND ${part_in_page} "${CMAKE_MATCH_1}\n")
  endif()
endforeach()
foreach(words SYNOPSIS JOBS OPTIONS)
  string(STRIP "${${words}}" ${words})
endforeach()
configure_file(${IN} ${OUT} @ONLY)
