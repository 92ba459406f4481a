# Compiles EveryEntry.cpp with wrong handlers and compares line by line: every entry must be refused.
#
#   cmake -DCOMPILER=... -DARGUMENTS=... -DSOURCE=.../EveryEntry.cpp -P EveryEntry.cmake
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${COMPILER} ${ARGUMENTS} ${SOURCE} ERROR_VARIABLE errors OUTPUT_QUIET RESULT_VARIABLE failed)

# Semicolons and brackets would make lists of their own in CMake.
file(READ ${SOURCE} text)
string(REGEX REPLACE "[][;]" " " text "${text}")
string(REPLACE "\n" ";" lines "${text}")
string(REGEX REPLACE "[][;]" " " errors "${errors}")

set(number 0)
set(entries 0)
set(inside FALSE)
foreach(line IN LISTS lines)
  math(EXPR number "${number} + 1")
  if(line MATCHES "// entries begin")
    set(inside TRUE)
  elseif(line MATCHES "// entries end")
    set(inside FALSE)
  elseif(inside)
    math(EXPR entries "${entries} + 1")
    if(NOT errors MATCHES "EveryEntry.cpp:${number}:[0-9]+: error")
      message(SEND_ERROR "compiles with a wrong handler, line ${number}: ${line}")
    endif()
  endif()
endforeach()
if(NOT failed OR entries LESS 60)
  message(FATAL_ERROR "${entries} entries looked at, the compiler gave ${failed}")
endif()
