target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/controlbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/framemessages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/statusbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/view.cpp)
