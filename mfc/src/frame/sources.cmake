target_sources(ovomfc PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/controlbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/controlbarpaint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/controlbartips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/barlayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/panelayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/toolbarlayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/framebars.cpp
  ${CMAKE_CURRENT_LIST_DIR}/framehelp.cpp
  ${CMAKE_CURRENT_LIST_DIR}/framemessages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/framemodal.cpp
  ${CMAKE_CURRENT_LIST_DIR}/statusbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbarimages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/toolbarrows.cpp
  ${CMAKE_CURRENT_LIST_DIR}/view.cpp)
