# Alpha images: the image list and the button that shows one.
set(images_core
  ${CMAKE_CURRENT_LIST_DIR}/core/DisabledPixels.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SharpenFilter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/StripChoice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/StripPixels.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/StripRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/StripScaling.cpp)
if(WIN32)
  # Windows aligns the stack to 16 bytes only, which the compiler forgets when it puts a 32-byte register there.
  set_source_files_properties(${images_core} PROPERTIES COMPILE_OPTIONS -Wa,-muse-unaligned-vector-move)
endif()

# A library of its own, which the tests and benchmarks link too.
add_library(ovoui_images_core STATIC ${images_core})
target_include_directories(ovoui_images_core PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(ovoui_images_core PRIVATE ovo_flags)

if(NOT WIN32)
  return()
endif()

target_link_libraries(ovoui PRIVATE ovoui_images_core)
target_sources(ovoui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AlphaImageButton.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AlphaImageList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DisabledStrip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GdiPlusSession.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ImageStrips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ResolutionWatch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StripPainter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StripReader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WatchedWindow.cpp)
