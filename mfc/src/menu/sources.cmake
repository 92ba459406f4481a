target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/cmdui.cpp
  ${CMAKE_CURRENT_LIST_DIR}/menu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/trackedmenu.cpp)
