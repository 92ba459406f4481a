target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/imagelist.cpp
  ${CMAKE_CURRENT_LIST_DIR}/listctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sliderctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/smallctrls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tabctrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/treectrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/treeitems.cpp)
