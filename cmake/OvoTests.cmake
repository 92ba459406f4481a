# Test programs: cross-compiled ones that run under Wine, native ones that run under the sanitizers.
#
#   ovo_test(NAME [NO_MANIFEST] [UNSEEN] SOURCES a.cpp ... LIBS target ... [RESOURCES x.rc ...] [TIMEOUT SECONDS])
#       A GoogleTest program for Windows with the test kit, registered with CTest. It asks for the
#       common controls 6 unless NO_MANIFEST is given. With UNSEEN it runs without a display, which is quicker where many
#       windows are made and none is looked at.
#   ovo_test_variant(NAME VARIANT [FILTER PATTERN] [THEMES OFF] [DPI N] [SCHEME NAME])
#       Runs the program NAME once more, as NAME.VARIANT: a part of it, with visual styles off, at a resolution of
#       N dots per inch instead of 96, or with the system's colours and fonts of a scheme in cmake/schemes.
#   ovo_native_test(NAME SOURCES a.cpp ... LIBS target ...)
#       A GoogleTest program for this machine under AddressSanitizer and UndefinedBehaviorSanitizer.
#   ovo_long_native_tests(a.cpp ...)
#       Sources of native tests in this folder that take longer to run than to compile: they are optimised.
#   ovo_file_test(NAME INPUTS path ... COMMAND words ... [TIMEOUT SECONDS])
#       A test of files and folders. It is run again when one of them, the command or the compiler has changed since it
#       passed, or where OVO_ALL_TESTS is in the environment.
#
# Each function for programs does nothing in the other kind of build, so that a folder's list needs no conditions.
include_guard(GLOBAL)

set(OVO_UNDER_WINE ${PROJECT_SOURCE_DIR}/cmake/under-wine)
set(OVO_TEST_RESULTS ${PROJECT_BINARY_DIR}/results)
# Optimising the tests themselves, and describing all their variables, would take half of their compilation; the sanitizers'
# reports need the lines alone.
set(OVO_NATIVE_TEST_OPTIONS -O0 -g1)
# Seconds for a whole program; on a busy machine it takes many times as long as alone. What hangs, the watchdog ends.
set(OVO_TEST_TIMEOUT 1500)

# Seconds of the runs that take longest. They begin first, so that none of them goes on alone at the end; CTest knows that by itself
# only in a folder where it has run them before.
set(OVO_TEST_COSTS
  test_lives=270 package=100 test_soak=90 test_gallery=80 test_faults=65 reproducible=55 test_tree=50 test_toolbar=40 test_lists=40
  test_update=35 test_files=25 test_colour=25 test_frame=25 test_testkit=20 test_colour.classic=20 test_colour.dpi144=20
  test_frame_plain=15 test_frame.classic=15 test_mfc_wnd=15 test_mfc_cdlg=15 test_sliders=10 test_mfc_dlg=10)

# _ovo_set_cost(NAME): tells CTest how long the run takes, where that is known.
function(_ovo_set_cost name)
  foreach(entry IN LISTS OVO_TEST_COSTS)
    if(entry MATCHES "^(.+)=([0-9]+)$" AND CMAKE_MATCH_1 STREQUAL name)
      set_tests_properties(${name} PROPERTIES COST ${CMAKE_MATCH_2})
    endif()
  endforeach()
endfunction()

function(ovo_long_native_tests)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# Registers one run of a test program with CTest; the counts are read from its XML afterwards.
function(_ovo_register name program timeout)
  set(report ${OVO_TEST_RESULTS}/${name}.xml)
  if(WIN32 AND NOT CMAKE_HOST_WIN32)
    set(report Z:${report}) # without a drive, GoogleTest takes it for a path below the working directory
  endif()
  set(arguments --gtest_output=xml:${report})
  cmake_parse_arguments(arg "UNSEEN" "FILTER;THEMES;DPI;SCHEME" "" ${ARGN})
  if(arg_FILTER)
    list(APPEND arguments --gtest_filter=${arg_FILTER})
  endif()
  set(launcher "")
  if(WIN32 AND NOT CMAKE_HOST_WIN32)
    set(themes on)
    if("${arg_THEMES}" STREQUAL "OFF")
      set(themes off)
    endif()
    set(dpi 96)
    if(arg_DPI)
      set(dpi ${arg_DPI})
    endif()
    set(launcher ${OVO_UNDER_WINE} --home ${PROJECT_BINARY_DIR}/wine --themes ${themes} --dpi ${dpi} --apart)
    if(arg_SCHEME)
      list(APPEND launcher --scheme ${arg_SCHEME})
    endif()
    if(arg_UNSEEN)
      list(APPEND launcher --unseen)
    endif()
  endif()
  add_test(NAME ${name} COMMAND ${launcher} $<TARGET_FILE:${program}> ${arguments}
           WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout})
  _ovo_set_cost(${name})
endfunction()

function(ovo_test name)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(arg "NO_MANIFEST;UNSEEN" "TIMEOUT" "SOURCES;LIBS;RESOURCES" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT ${OVO_TEST_TIMEOUT})
  endif()
  if(NOT arg_NO_MANIFEST)
    list(APPEND arg_RESOURCES ${PROJECT_SOURCE_DIR}/tests/support/program.rc)
  endif()
  add_executable(${name} ${arg_SOURCES} ${arg_RESOURCES})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX) # also of objects of another program
  target_link_libraries(${name} PRIVATE ovo_flags ${arg_LIBS} ovo_testkit)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  # Optimising the tests themselves would take more than half of their compilation.
  target_compile_options(${name} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  target_precompile_headers(${name} REUSE_FROM ovo_testkit)
  # A library's own definitions may keep the shared header from being reused; that costs time only.
  set_target_properties(${name} PROPERTIES PCH_WARN_INVALID OFF)
  set(how "")
  if(arg_UNSEEN)
    set(how UNSEEN)
  endif()
  _ovo_register(${name} ${name} ${arg_TIMEOUT} ${how})
endfunction()

function(ovo_test_variant name variant)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(arg "" "FILTER;THEMES;DPI;SCHEME;TIMEOUT" "" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT ${OVO_TEST_TIMEOUT})
  endif()
  set(how "")
  if(arg_FILTER)
    list(APPEND how FILTER ${arg_FILTER})
  endif()
  if(DEFINED arg_THEMES)
    list(APPEND how THEMES ${arg_THEMES})
  endif()
  if(arg_DPI)
    list(APPEND how DPI ${arg_DPI})
  endif()
  if(arg_SCHEME)
    list(APPEND how SCHEME ${arg_SCHEME})
  endif()
  _ovo_register(${name}.${variant} ${name} ${arg_TIMEOUT} ${how})
endfunction()

function(ovo_native_test name)
  if(WIN32)
    return()
  endif()
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT ${OVO_TEST_TIMEOUT})
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ovo_flags ${arg_LIBS} native_main)
  target_compile_options(${name} PRIVATE ${OVO_NATIVE_TEST_OPTIONS})
  target_precompile_headers(${name} REUSE_FROM native_main)
  # A library's own definitions may keep the shared header from being reused; that costs time only.
  set_target_properties(${name} PROPERTIES PCH_WARN_INVALID OFF)
  _ovo_register(${name} ${name} ${arg_TIMEOUT})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT
    "ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
endfunction()

function(ovo_file_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "INPUTS;COMMAND")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  add_test(NAME ${name}
    COMMAND ${PROJECT_SOURCE_DIR}/cmake/unless-unchanged ${PROJECT_BINARY_DIR}/passed/${name} ${CMAKE_CXX_COMPILER} ${arg_INPUTS}
            -- ${arg_COMMAND})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
  _ovo_set_cost(${name})
endfunction()
