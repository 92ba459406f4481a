target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/oleinit.cpp)
