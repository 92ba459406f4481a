target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/dllmain.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dynlink.cpp
  ${CMAKE_CURRENT_LIST_DIR}/findres.cpp
  ${CMAKE_CURRENT_LIST_DIR}/module.cpp
  ${CMAKE_CURRENT_LIST_DIR}/thread.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndclass.cpp)
