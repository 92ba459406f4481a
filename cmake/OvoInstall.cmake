# The install tree: bin/ the DLLs, the gallery and ovo-update-lint, lib/ import libraries and the packages for CMake and
# pkg-config, include/ the public headers, doc/ the reference, examples/, licences/, share/gdb/ the debugger's views.
# Components: runtime, gallery, sdk, testkit, doc, examples.
include(CMakePackageConfigHelpers)

set(targets ovoui ovocor ovomsg ovomfc ovosvg)
set_target_properties(ovoui PROPERTIES EXPORT_NAME ui)
set_target_properties(ovocor PROPERTIES EXPORT_NAME cor)
set_target_properties(ovomsg PROPERTIES EXPORT_NAME msg)
set_target_properties(ovomfc PROPERTIES EXPORT_NAME mfc)
set_target_properties(ovosvg PROPERTIES EXPORT_NAME svg)
set_target_properties(ovomfcmain PROPERTIES EXPORT_NAME mfcmain)

install(TARGETS ${targets} ovomfcmain EXPORT ovouiTargets
        RUNTIME DESTINATION bin COMPONENT runtime ARCHIVE DESTINATION lib COMPONENT sdk)
install(TARGETS ovouires RUNTIME DESTINATION bin COMPONENT runtime)
install(FILES ${OVO_RUNTIME_DLLS} DESTINATION bin COMPONENT runtime)
install(TARGETS gallery RUNTIME DESTINATION bin COMPONENT gallery)
install(TARGETS ovo-update-lint RUNTIME DESTINATION bin COMPONENT sdk)

# For linkers that do not read the archives of MinGW: import libraries made from the list of exports, and the lists.
find_program(OVO_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED NO_CMAKE_FIND_ROOT_PATH)
set(export_lists ${PROJECT_BINARY_DIR}/lib/by-export-list)
file(MAKE_DIRECTORY ${export_lists})
foreach(target ${targets})
  get_target_property(name ${target} OUTPUT_NAME)
  add_custom_command(OUTPUT ${export_lists}/${name}.lib ${export_lists}/${name}.def
    COMMAND ${OVO_PYTHON} ${PROJECT_SOURCE_DIR}/sdk/module-definition $<TARGET_FILE:${target}> ${export_lists}/${name}.def
    COMMAND ${OVO_DLLTOOL} -m i386:x86-64 -d ${export_lists}/${name}.def -l ${export_lists}/${name}.lib
    DEPENDS ${target} ${PROJECT_SOURCE_DIR}/sdk/module-definition ${PROJECT_SOURCE_DIR}/sdk/pe.py
    COMMENT "Making ${name}.lib" VERBATIM)
  list(APPEND import_libraries ${export_lists}/${name}.lib ${export_lists}/${name}.def)
endforeach()
add_custom_target(import-libraries ALL DEPENDS ${import_libraries})
install(FILES ${import_libraries} DESTINATION lib/by-export-list COMPONENT sdk)

# What sits in core/ or says "Not exported" in its first lines stays private.
function(ovo_install_headers folder)
  file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.h)
  foreach(header ${headers})
    file(STRINGS ${PROJECT_SOURCE_DIR}/${header} start LIMIT_COUNT 1)
    get_filename_component(name ${header} NAME)
    if(header MATCHES "/core/" OR start MATCHES "Not exported" OR name STREQUAL "pch.h")
      continue()
    endif()
    get_filename_component(where ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION include/${where} COMPONENT sdk)
    set_property(GLOBAL APPEND PROPERTY OVO_PUBLIC_HEADERS ${header}) # for the test that compiles them
  endforeach()
endfunction()
ovo_install_headers(ovocor)
ovo_install_headers(ovomsg)
ovo_install_headers(ovoui)
ovo_install_headers(ovosvg)
install(FILES ${PROJECT_SOURCE_DIR}/ovouires/resource.h DESTINATION include/ovouires COMPONENT sdk)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/mfc/include/ DESTINATION include/mfc COMPONENT sdk)

install(EXPORT ovouiTargets NAMESPACE ovo:: DESTINATION lib/cmake/ovoui COMPONENT sdk)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ovouiConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfig.cmake INSTALL_DESTINATION lib/cmake/ovoui)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ovouiConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfigVersion.cmake
              ${CMAKE_CURRENT_LIST_DIR}/ovouiManifest.cmake ${CMAKE_CURRENT_LIST_DIR}/manifest.rc
              ${CMAKE_CURRENT_LIST_DIR}/host.manifest ${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake
        DESTINATION lib/cmake/ovoui COMPONENT sdk)

foreach(package ovoui ovoui-windowed ovoui-svg)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${package}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc DESTINATION lib/pkgconfig COMPONENT sdk)
endforeach()

install(FILES ${PROJECT_SOURCE_DIR}/sdk/gdb/ovoui.py DESTINATION share/gdb/ovoui COMPONENT sdk)

# The reference is made by the target doc; without it the folder stays empty.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/doc/html/ DESTINATION doc COMPONENT doc OPTIONAL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION examples COMPONENT examples OPTIONAL
        REGEX "/examples/CMakeLists.txt$" EXCLUDE) # which builds them as part of the project

# The runtime's licences demand that their texts travel with the DLLs; Debian keeps them beside the compiler. What is built on
# Windows is for that machine: docs/building-on-windows.md.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION licences RENAME ovoui.txt COMPONENT runtime)
if(NOT CMAKE_HOST_WIN32)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/runtime-notices.txt
          DESTINATION licences/runtime RENAME NOTICES.txt COMPONENT runtime)
  install(FILES /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright
          DESTINATION licences/runtime RENAME gcc-copyright.txt COMPONENT runtime)
  install(FILES /usr/share/doc/mingw-w64-x86-64-dev/copyright
          DESTINATION licences/runtime RENAME mingw-w64-copyright.txt COMPONENT runtime)
  install(FILES /usr/share/common-licenses/GPL-3
          DESTINATION licences/runtime RENAME GPL-3.txt COMPONENT runtime)
endif()
