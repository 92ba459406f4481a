# What every target of the project shares, and the functions that make libraries, programs and tests.
include_guard(GLOBAL)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# What is made while building is made by scripts, which not every system can start by themselves.
find_program(OVO_PYTHON NAMES python3 python REQUIRED DOC "Python 3")

add_library(ovo_flags INTERFACE)
target_compile_options(ovo_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra>)
if(OVO_WERROR)
  target_compile_options(ovo_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Werror>)
endif()
if(OVO_ASSERTIONS)
  target_compile_options(ovo_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-UNDEBUG>)
  target_compile_definitions(ovo_flags INTERFACE OVO_ASSERTIONS)
endif()
if(WIN32)
  # windres must find our afxres.h before the toolchain's own; scripts are UTF-8.
  target_compile_definitions(ovo_flags INTERFACE UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601)
  # printf formats here follow the C runtime's wide rules, which the compiler's checker does not know.
  target_compile_options(ovo_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-format>)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
  set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} -c 65001")
endif()
if(OVO_SANITIZE)
  target_compile_options(ovo_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_link_options(ovo_flags INTERFACE -fsanitize=address,undefined)
endif()

# ovo_version_record(TARGET FILE TYPE DESCRIPTION): the version that the system shows of a DLL or program. TYPE is VFT_DLL or
# VFT_APP.
function(ovo_version_record target file type description)
  get_filename_component(internal_name ${file} NAME_WLE)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${script} @ONLY)
  target_sources(${target} PRIVATE ${script})
  set_source_files_properties(${script} PROPERTIES
    OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/ovoui/version.h INCLUDE_DIRECTORIES ${PROJECT_SOURCE_DIR})
endfunction()

# ovo_library(NAME OUTPUT FILE DESCRIPTION WORDS EXPORT MACRO SOURCES ...): a DLL. Its sources see MACRO defined.
function(ovo_library name)
  cmake_parse_arguments(arg "" "OUTPUT;DESCRIPTION;EXPORT" "SOURCES" ${ARGN})
  add_library(${name} SHARED ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES OUTPUT_NAME ${arg_OUTPUT} PREFIX "")
  ovo_version_record(${name} ${arg_OUTPUT}.dll VFT_DLL "${arg_DESCRIPTION}")
  target_link_libraries(${name} PRIVATE ovo_flags)
  target_compile_features(${name} PUBLIC cxx_std_20) # its headers need it, so hosts do
  if(arg_EXPORT)
    target_compile_definitions(${name} PRIVATE ${arg_EXPORT})
  endif()
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:include>)
endfunction()

# The compiler's runtime travels with the programs: exceptions cross the DLLs, so it is always shared. Debugging information is nine
# tenths of it and most of the time that it takes to load, so only tests, whose call stacks may end there, have it. --preserve-dates: two
# builds give the same file.
if(WIN32)
  file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${PROJECT_BINARY_DIR}/runtime)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      find_file(path_${dll} ${dll} PATHS /usr/x86_64-w64-mingw32/lib /usr/x86_64-w64-mingw32/bin
                NO_CMAKE_FIND_ROOT_PATH REQUIRED)
      set(path "${path_${dll}}")
    endif()
    file(REAL_PATH "${path}" path)
    set(runtime "${PROJECT_BINARY_DIR}/runtime/${dll}")
    file(COPY_FILE "${path}" "${runtime}")
    if(CMAKE_STRIP AND NOT OVO_TESTS)
      execute_process(COMMAND ${CMAKE_STRIP} --preserve-dates "${runtime}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
    file(COPY_FILE "${runtime}" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll}" ONLY_IF_DIFFERENT)
    list(APPEND OVO_RUNTIME_DLLS "${runtime}")
  endforeach()
endif()
