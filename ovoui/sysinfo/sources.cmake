# System information: the dialog that lists the process's modules.
set(sysinfo_core
  ${CMAKE_CURRENT_LIST_DIR}/core/MachineText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ModuleText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ModuleView.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/StretchRule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/VersionWords.cpp)

if(NOT WIN32)
  add_library(ovoui_sysinfo_core STATIC ${sysinfo_core})
  target_include_directories(ovoui_sysinfo_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_sysinfo_core PRIVATE ovo_flags PUBLIC ovoui_frame_core)
  return()
endif()

target_sources(ovoui PRIVATE
  ${sysinfo_core}
  ${CMAKE_CURRENT_LIST_DIR}/MachineInfo.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModuleListDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModuleReader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StretchedControls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SystemInfoDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VersionRecord.cpp)
target_link_libraries(ovoui PRIVATE version dbghelp)
