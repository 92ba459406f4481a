# Compiles a source whose marked lines must be refused, and compares line by line: each must give an error.
#
#   cmake -DCOMPILER=... -DARGUMENTS=... -DSOURCE=... -DLEAST=5 -P RefusedLines.cmake
#
# The lines stand between "// refused from here" and "// refused to here", at least LEAST of them.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${COMPILER} ${ARGUMENTS} ${SOURCE} ERROR_VARIABLE errors OUTPUT_QUIET RESULT_VARIABLE failed)
get_filename_component(name ${SOURCE} NAME)

# Semicolons and brackets would make lists of their own in CMake.
file(READ ${SOURCE} text)
string(REGEX REPLACE "[][;]" " " text "${text}")
string(REPLACE "\n" ";" lines "${text}")
string(REGEX REPLACE "[][;]" " " errors "${errors}")

set(number 0)
set(marked 0)
set(inside FALSE)
foreach(line IN LISTS lines)
  math(EXPR number "${number} + 1")
  if(line MATCHES "// refused from here")
    set(inside TRUE)
  elseif(line MATCHES "// refused to here")
    set(inside FALSE)
  elseif(inside)
    math(EXPR marked "${marked} + 1")
    if(NOT errors MATCHES "${name}:${number}:[0-9]+: error")
      message(SEND_ERROR "compiles, line ${number}: ${line}")
    endif()
  endif()
endforeach()
if(NOT failed OR marked LESS LEAST)
  message(FATAL_ERROR "${marked} lines looked at, the compiler gave ${failed}")
endif()
