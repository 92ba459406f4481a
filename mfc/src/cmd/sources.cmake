target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/cmdtarget.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dispatchtable.cpp
  ${CMAKE_CURRENT_LIST_DIR}/interfacemap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/msgmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/waitcursor.cpp)
