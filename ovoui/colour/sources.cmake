# The colour picker, its dialogs, and the shaded tab control that carries them.
set(colour_core
  ${CMAKE_CURRENT_LIST_DIR}/core/BrushPlace.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ButtonFaceLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/CellLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ColourHistory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ColourModes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ColourText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/Contrast.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ControlKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DropGesture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FocusMark.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/HueRing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/KeyedShade.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/MagnifierLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/PickerGesture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/RecentColours.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ScreenPick.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ShadeTriangle.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SwatchLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TypedColour.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ValueText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/WheelGeometry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/WheelKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/WheelRaster.cpp)

if(NOT WIN32)
  add_library(ovoui_colour_core STATIC ${colour_core})
  target_include_directories(ovoui_colour_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_colour_core PUBLIC ovocor_core ovoui_frame_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${colour_core}
  ${CMAKE_CURRENT_LIST_DIR}/AccessibleColours.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPicker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerDlgBase.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerMouse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerPaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColPickerPaletteDlg.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourButton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourButtonFace.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourCells.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourDrop.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourDropper.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourGrid.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColourWheelImage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Magnifier.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PickerStop.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ShadedTabCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ShadedTabPage.cpp)
