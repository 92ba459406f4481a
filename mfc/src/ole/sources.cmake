target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/dataobject.cpp
  ${CMAKE_CURRENT_LIST_DIR}/datasource.cpp
  ${CMAKE_CURRENT_LIST_DIR}/datasourcepart.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dropsource.cpp
  ${CMAKE_CURRENT_LIST_DIR}/droptarget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/formatenumerator.cpp
  ${CMAKE_CURRENT_LIST_DIR}/medium.cpp
  ${CMAKE_CURRENT_LIST_DIR}/oleinit.cpp)
