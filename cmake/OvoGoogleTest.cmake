# GoogleTest comes as source, since it must be built by the same compiler as the programs.
include_guard(GLOBAL)

set(OVO_GOOGLETEST /usr/src/googletest CACHE PATH "Source of GoogleTest")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
add_subdirectory(${OVO_GOOGLETEST} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
