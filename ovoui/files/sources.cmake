# File and folder dialogs: the file dialog with the host's controls, browse functions.
set(files_core
  ${CMAKE_CURRENT_LIST_DIR}/core/ClassicEvents.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DeclaredControls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DialogFlags.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FileTypes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FilterChoice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/NearestFolder.cpp)

if(NOT WIN32)
  add_library(ovoui_files_core STATIC ${files_core})
  target_include_directories(ovoui_files_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_files_core PUBLIC ovocor_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${files_core}
  ${CMAKE_CURRENT_LIST_DIR}/AskedFiles.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BrowseForDir.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BrowseForFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileDialogControls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileDialogExtras.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileDialogFolders.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileDialogImp.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FilePicker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ShellImages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ShellPaths.cpp)
target_link_libraries(ovoui PRIVATE shlwapi)
