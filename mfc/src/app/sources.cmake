target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/app.cpp
  ${CMAKE_CURRENT_LIST_DIR}/appmain.cpp
  ${CMAKE_CURRENT_LIST_DIR}/commandline.cpp
  ${CMAKE_CURRENT_LIST_DIR}/help.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/displayname.cpp
  ${CMAKE_CURRENT_LIST_DIR}/helpmode.cpp
  ${CMAKE_CURRENT_LIST_DIR}/messagebox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/messageboxhelp.cpp
  ${CMAKE_CURRENT_LIST_DIR}/profile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/recentfilelist.cpp
  ${CMAKE_CURRENT_LIST_DIR}/recentfiles.cpp
  ${CMAKE_CURRENT_LIST_DIR}/thread.cpp
  ${CMAKE_CURRENT_LIST_DIR}/threadstart.cpp)
