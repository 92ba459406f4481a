# The colour picker, its dialogs, and the shaded tab control that carries them.
if(NOT WIN32)
  return()
endif()

target_sources(ovoui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ShadedTabCtrl.cpp)
