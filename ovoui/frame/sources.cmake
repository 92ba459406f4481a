# Library frame: module start and stop, theme data, geometry, keys, the modal dialog base, the message box.
set(frame_core
  ${CMAKE_CURRENT_LIST_DIR}/core/BoxAnswers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/BoxExtras.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/BoxKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/Countdown.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LabelText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LanguageChoice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LineBreaker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LineEnds.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/MessageBoxLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/MessageBoxStyle.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/Placement.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ProfileNumber.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ProgressRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SavedPosition.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TabStep.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/VersionBlock.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/WrappedText.cpp)

if(NOT WIN32)
  add_library(ovoui_frame_core STATIC ${frame_core})
  target_include_directories(ovoui_frame_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_frame_core PRIVATE ovo_flags ovocor_core)
  return()
endif()

target_sources(ovoui PRIVATE
  ${frame_core}
  ${CMAKE_CURRENT_LIST_DIR}/Accessible.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AsHandler.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BufferedPaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ClipboardText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Geometry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GlobalMemory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/KeptTheme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Language.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MemoryBitmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageDialogBox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ModalDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Module.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MsgBoxDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MsgBoxDlgInit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NonClientMetrics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OwnWindow.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Platform.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileExchange.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileSection.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProgressBox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProgressBoxDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RaiseLater.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RedrawHold.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ResourceVersion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Subclass.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TabKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ThemeData.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Tip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TipWindow.cpp)
include(${CMAKE_CURRENT_LIST_DIR}/icons.cmake)
target_link_libraries(ovoui PRIVATE oleacc oleaut32)
