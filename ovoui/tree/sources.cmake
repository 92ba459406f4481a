# The multi-selection tree.
set(tree_core
  ${CMAKE_CURRENT_LIST_DIR}/core/DropEffect.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/EdgeScroll.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TreePath.cpp)

if(NOT WIN32)
  add_library(ovoui_tree_core STATIC ${tree_core})
  target_include_directories(ovoui_tree_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_tree_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${tree_core}
  ${CMAKE_CURRENT_LIST_DIR}/ChildWalk.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DragDetector.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DropMenu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DropTarget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Inserter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InsertionPoint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ItemTracker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MultiTreeCtrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ParentNotificationFilter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PlainText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Platform.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RedrawHold.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RowKeeper.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SelectionRecord.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeCommands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeContextMenu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeDeleting.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeDrop.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeErasing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeExpansion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeGate.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeInsertion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeIterator.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeLabelEdit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeMouse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeNode.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreePaste.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreePaths.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeRefresh.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeSelection.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeState.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeTips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TreeWalk.cpp)
