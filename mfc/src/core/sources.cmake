target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/diagnostics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/exception.cpp
  ${CMAKE_CURRENT_LIST_DIR}/object.cpp
  ${CMAKE_CURRENT_LIST_DIR}/string.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringformat.cpp)
