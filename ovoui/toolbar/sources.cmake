# Toolbars whose buttons carry flyouts.
set(toolbar_core
  ${CMAKE_CURRENT_LIST_DIR}/core/BarRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/BarWalk.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ButtonRows.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ButtonRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ControlKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FlyoutEntries.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FlyoutGesture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FlyoutPlacement.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FlyoutRecords.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/GripperDots.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LayoutRules.cpp)

if(NOT WIN32)
  add_library(ovoui_toolbar_core STATIC ${toolbar_core})
  target_include_directories(ovoui_toolbar_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_toolbar_core PUBLIC ovocor_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${toolbar_core}
  ${CMAKE_CURRENT_LIST_DIR}/AccessibleBar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ButtonNames.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ButtonUpdate.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FlyoutTip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FlyoutToolbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FlyoutTracking.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ImageStrip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarAccess.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarButtons.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarChoices.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarCommands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarFlyouts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarGesture.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarKeyboard.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarPaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarStrips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ToolBarTips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VantorToolBar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VantorToolWnd.cpp)
