target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/propertypage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/propertysheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sheetcreation.cpp)
