target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/core/filefilter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/filelist.cpp
  ${CMAKE_CURRENT_LIST_DIR}/classicfiledialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/commondialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/filedialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/filedialogevents.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shellfiledialog.cpp)
