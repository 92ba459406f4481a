# Alpha images: the image list and the button that shows one.
set(images_core ${CMAKE_CURRENT_LIST_DIR}/core/SharpenFilter.cpp)
# Its loops are written to become vector instructions. Wide registers that the compiler puts on the stack must not be
# taken for aligned there: on Windows the stack is aligned to 16 bytes only.
set(images_core_options -O3)
if(WIN32)
  list(APPEND images_core_options -Wa,-muse-unaligned-vector-move)
endif()
set_source_files_properties(${images_core} PROPERTIES COMPILE_OPTIONS "${images_core_options}")

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
  ${CMAKE_CURRENT_LIST_DIR}/StripPainter.cpp)
