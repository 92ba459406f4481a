target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/bitmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/brush.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dc.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcdraw.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcfont.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcmapping.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcpictures.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcprint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dcshapes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dctext.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dctools.cpp
  ${CMAKE_CURRENT_LIST_DIR}/font.cpp
  ${CMAKE_CURRENT_LIST_DIR}/gdiobject.cpp
  ${CMAKE_CURRENT_LIST_DIR}/palette.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pen.cpp
  ${CMAKE_CURRENT_LIST_DIR}/region.cpp
  ${CMAKE_CURRENT_LIST_DIR}/windowdcs.cpp)
