# Read by cpack before it packs: the file's name tells what it is.
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(CPACK_PACKAGE_FILE_NAME ovoui-${CPACK_PACKAGE_VERSION}-setup)
else()
  set(CPACK_PACKAGE_FILE_NAME ovoui-${CPACK_PACKAGE_VERSION}-sdk)
endif()
