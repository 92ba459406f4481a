target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/collections.cpp
  ${CMAKE_CURRENT_LIST_DIR}/diagnostics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/exception.cpp
  ${CMAKE_CURRENT_LIST_DIR}/object.cpp
  ${CMAKE_CURRENT_LIST_DIR}/oledatetime.cpp
  ${CMAKE_CURRENT_LIST_DIR}/string.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringedit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringformat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringload.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stringsearch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sync.cpp
  ${CMAKE_CURRENT_LIST_DIR}/time.cpp)
