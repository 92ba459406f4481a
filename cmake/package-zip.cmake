# Run by cpack when a package is there: writes the archive anew from the same files, in order and with a fixed time.
if(CPACK_GENERATOR STREQUAL "ZIP")
  execute_process(COMMAND ${CPACK_OVO_MAKE_ZIP} ${CPACK_PACKAGE_FILES} ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
endif()
