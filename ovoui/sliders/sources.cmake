# Sliders: the slider button with its popup, the round and the wheel slider, decimal signs and list separators.
set(sliders_core
  ${CMAKE_CURRENT_LIST_DIR}/core/AngleKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ButtonKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/CylinderDrag.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/CylinderPicture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DialPicture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DialTurn.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/NumberText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/PopupRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SeparatorText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SliderDrag.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SliderMapping.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SliderNumbers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SliderPlaces.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SliderTip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/UnitText.cpp)

if(NOT WIN32)
  add_library(ovoui_sliders_core STATIC ${sliders_core})
  target_include_directories(ovoui_sliders_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_sliders_core PUBLIC ovoui_frame_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${sliders_core}
  ${CMAKE_CURRENT_LIST_DIR}/AccessibleSlider.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AngleEdit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AngleSlider.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AngleSliderKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Buddy.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BuddyWheel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DialSlider.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PopupSlider.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PopupSliderCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PopupWatcher.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RoundSlider.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Separators.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderBubble.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderButton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderButtonFace.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderButtonInput.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderButtonNumber.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderButtonPopup.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SliderData.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UnitNumbers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WheelSlider.cpp)
