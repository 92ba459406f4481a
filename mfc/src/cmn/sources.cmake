target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/headerctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/imagelist.cpp
  ${CMAKE_CURRENT_LIST_DIR}/listctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/listgroups.cpp
  ${CMAKE_CURRENT_LIST_DIR}/listview.cpp
  ${CMAKE_CURRENT_LIST_DIR}/progressctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sliderctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/spinbuttonctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/statusbarctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tabctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbarctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbarview.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tooltipctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/treectrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/treeitems.cpp)
