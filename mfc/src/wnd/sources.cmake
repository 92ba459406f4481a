target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/handlemap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/modalloop.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pending.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndcmd.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndcreate.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndhandlers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndlayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndmembers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndproc.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndreflect.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndtip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wndtree.cpp)
