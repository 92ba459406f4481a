# The install tree: bin/ the DLLs, lib/ their import libraries and the packages for CMake and pkg-config, include/ the
# public headers, share/doc/ovoui the licences.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(targets ovoui ovocor ovomsg ovomfc)
set_target_properties(ovoui PROPERTIES EXPORT_NAME ui)
set_target_properties(ovocor PROPERTIES EXPORT_NAME cor)
set_target_properties(ovomsg PROPERTIES EXPORT_NAME msg)
set_target_properties(ovomfc PROPERTIES EXPORT_NAME mfc)
set_target_properties(ovomfcmain PROPERTIES EXPORT_NAME mfcmain)

install(TARGETS ${targets} ovomfcmain EXPORT ovouiTargets
        RUNTIME DESTINATION bin ARCHIVE DESTINATION lib LIBRARY DESTINATION lib)
install(TARGETS ovouires ovo-update-lint RUNTIME DESTINATION bin)
install(FILES ${OVO_RUNTIME_DLLS} DESTINATION bin)

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
    install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION include/${where})
    set_property(GLOBAL APPEND PROPERTY OVO_PUBLIC_HEADERS ${header}) # for the test that compiles them
  endforeach()
endfunction()
ovo_install_headers(ovocor)
ovo_install_headers(ovomsg)
ovo_install_headers(ovoui)
install(FILES ${PROJECT_SOURCE_DIR}/ovouires/resource.h DESTINATION include/ovouires)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/mfc/include/ DESTINATION include/mfc)

install(EXPORT ovouiTargets NAMESPACE ovo:: DESTINATION lib/cmake/ovoui)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ovouiConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfig.cmake INSTALL_DESTINATION lib/cmake/ovoui)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ovouiConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ovouiConfigVersion.cmake
        DESTINATION lib/cmake/ovoui)

foreach(package ovoui ovoui-windowed)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${package}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc DESTINATION lib/pkgconfig)
endforeach()

# The runtime's licences demand that their texts travel with the DLLs; Debian keeps them beside the compiler.
set(documents share/doc/ovoui)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${documents})
install(FILES ${CMAKE_CURRENT_LIST_DIR}/runtime-notices.txt DESTINATION ${documents}/runtime RENAME NOTICES.txt)
install(FILES /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright
        DESTINATION ${documents}/runtime RENAME gcc-copyright.txt)
install(FILES /usr/share/doc/mingw-w64-x86-64-dev/copyright
        DESTINATION ${documents}/runtime RENAME mingw-w64-copyright.txt)
install(FILES /usr/share/common-licenses/GPL-3 DESTINATION ${documents}/runtime RENAME GPL-3.txt)
