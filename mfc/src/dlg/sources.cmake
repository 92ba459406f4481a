target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/core/numbertext.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dataexchange.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ddvalidate.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ddxdates.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ddxlists.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ddxmessages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ddxtext.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialoginit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/modal.cpp)
