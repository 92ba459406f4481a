# Lists: the extended list control and the completing combo box.
set(lists_core
  ${CMAKE_CURRENT_LIST_DIR}/core/Checkerboard.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ColumnLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ComboItemLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ComboRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/CompletionSearch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/EntryColours.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/FindRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/HitRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/KeyHeads.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/NumberText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/RowLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ShortText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SortKeys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TableText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TextHistory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/TextSearch.cpp)

if(NOT WIN32)
  add_library(ovoui_lists_core STATIC ${lists_core})
  target_include_directories(ovoui_lists_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_lists_core PUBLIC ovoui_frame_core PRIVATE ovo_flags)
  return()
endif()

target_sources(ovoui PRIVATE
  ${lists_core}
  ${CMAKE_CURRENT_LIST_DIR}/ColourEntry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ColumnFit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboBox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboBoxExtras.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboCompletion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboFunctions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboHistory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboHits.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboItems.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComboSearch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/EmphasisedText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListCellTips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListCells.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListColumns.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListCopier.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListCtrlEx.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListFinder.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListHelper.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListRowPainter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListSorter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LocaleOrder.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RangeInput.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RowData.cpp)
target_link_libraries(ovoui PRIVATE oleaut32)
