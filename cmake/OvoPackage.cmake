# What cpack makes of the install tree: the SDK as a zip archive, and an installer of gallery and SDK by NSIS.
set(CPACK_PACKAGE_NAME ovoui)
set(CPACK_PACKAGE_VENDOR "the ovoui authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_GENERATOR ZIP)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime gallery sdk testkit doc examples)

# Names by kind, and the archive's final form: the same files give the same bytes.
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/package-names.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/package-zip.cmake)
set(CPACK_OVO_MAKE_ZIP ${PROJECT_SOURCE_DIR}/sdk/make-zip)

set(CPACK_NSIS_DISPLAY_NAME "ovoui ${PROJECT_VERSION}")
set(CPACK_NSIS_INSTALL_ROOT "$PROGRAMFILES64")
set(CPACK_PACKAGE_INSTALL_DIRECTORY ovoui)
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY ovoui)
set(CPACK_NSIS_UNINSTALL_NAME uninstall)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_MANIFEST_DPI_AWARE ON)
set(CPACK_NSIS_MENU_LINKS bin/gallery.exe "ovoui gallery" doc/index.html "ovoui reference")
set(CPACK_NSIS_INSTALLED_ICON_NAME bin/gallery.exe)

include(CPackComponent)
cpack_add_component(runtime DISPLAY_NAME "Libraries" HIDDEN REQUIRED)
cpack_add_component(gallery DISPLAY_NAME "Gallery" DESCRIPTION "Shows every control." DEPENDS runtime)
cpack_add_component(sdk DISPLAY_NAME "Development" DEPENDS runtime
  DESCRIPTION "Headers, import libraries, packages for CMake and pkg-config, views for the debugger, ovo-update-lint.")
cpack_add_component(testkit DISPLAY_NAME "Test kit" DESCRIPTION "For the tests of programs." DEPENDS sdk)
cpack_add_component(doc DISPLAY_NAME "Reference" DESCRIPTION "The reference and the guides.")
cpack_add_component(examples DISPLAY_NAME "Examples" DESCRIPTION "Sources of example programs." DEPENDS sdk)
include(CPack)
