# The multi-selection tree.
set(tree_core
  ${CMAKE_CURRENT_LIST_DIR}/core/BandFrame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ClickRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DragRule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/DropEffect.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/EdgeScroll.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ExpansionRule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/KeyRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/LabelRule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SavedView.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SelectionNews.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SelectRule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TreePath.cpp)

if(NOT WIN32)
  add_library(ovoui_tree_core STATIC ${tree_core})
  target_include_directories(ovoui_tree_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_tree_core PUBLIC ovoui_frame_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${tree_core}
  ${CMAKE_CURRENT_LIST_DIR}/Band.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CheckBoxConcern.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ChildWalk.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Commands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ContextMenu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Deletion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DragDetector.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DropMenu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DropTarget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Dropping.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Erasing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Expansion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Filter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Find.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Gate.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Inserter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Insertion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InsertionPoint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ItemTracker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Keyboard.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LabelEdit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LayoutHold.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Mouse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MouseWait.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MultiTreeCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ParentNotificationFilter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Paste.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Paths.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PlainText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Refresh.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RowKeeper.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SelectedItems.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Selection.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SelectionEvents.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SelectionRecord.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Tips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeIterator.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeNode.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeState.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UnreportedNodes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/View.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ViewKeeper.cpp)
