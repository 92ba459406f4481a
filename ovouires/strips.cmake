# Strips of images for toolbars and buttons: drawn as SVG, turned into bitmaps while building.
set(toolbar_images new open save cut copy paste delete undo redo find print help)
set(button_images add remove up down edit refresh)
set(files_images open up refresh save copy link sort-name sort-size sort-changed computer modules)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(strip_folder ${CMAKE_CURRENT_BINARY_DIR}/strips)
set(make_strip ${PROJECT_SOURCE_DIR}/ovoui/tools/make-strip)
file(MAKE_DIRECTORY ${strip_folder})
set(strip_files "")

# add_strip(FILE SIZE [--classic] IMAGE ...)
function(add_strip file size)
  set(how "")
  if("${ARGV2}" STREQUAL --classic)
    set(how --classic)
    list(REMOVE_ITEM ARGN --classic)
  endif()
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/strips/)
  list(TRANSFORM ARGN APPEND .svg)
  add_custom_command(OUTPUT ${strip_folder}/${file}
    COMMAND ${OVO_PYTHON} ${make_strip} ${strip_folder}/${file} ${size} ${how} ${ARGN}
    DEPENDS ${ARGN} ${make_strip} ${PROJECT_SOURCE_DIR}/ovoui/tools/svgpixels.py
    VERBATIM)
  set(strip_files ${strip_files} ${strip_folder}/${file} PARENT_SCOPE)
endfunction()

foreach(size 16 24 32)
  add_strip(toolbar${size}.bmp ${size} ${toolbar_images})
  add_strip(buttons${size}.bmp ${size} ${button_images})
  add_strip(files${size}.bmp ${size} ${files_images})
endforeach()
add_strip(toolbar16classic.bmp 16 --classic ${toolbar_images})
add_strip(buttons16classic.bmp 16 --classic ${button_images})
# One image each, for buttons, which show a classic bitmap as a whole.
foreach(image ${button_images})
  add_strip(${image}16.bmp 16 ${image})
  add_strip(${image}16classic.bmp 16 --classic ${image})
endforeach()
