target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/bitmapbutton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button.cpp
  ${CMAKE_CURRENT_LIST_DIR}/combobox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/listbox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scrollbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/static.cpp)
