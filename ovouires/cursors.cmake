# Cursors: drawn as SVG, packed into cursor files while building.
set(make_ico ${PROJECT_SOURCE_DIR}/ovoui/tools/make-ico)
set(cursor_folder ${CMAKE_CURRENT_BINARY_DIR}/cursors)
file(MAKE_DIRECTORY ${cursor_folder})
set(cursor_files "")

# add_cursor(NAME HOTSPOT): the point that counts, as X,Y in a drawing of 32 by 32
function(add_cursor name hotspot)
  set(svg ${CMAKE_CURRENT_SOURCE_DIR}/cursors/${name}.svg)
  set(cur ${cursor_folder}/${name}.cur)
  add_custom_command(OUTPUT ${cur}
    COMMAND ${OVO_PYTHON} ${make_ico} --hotspot ${hotspot} ${cur} ${svg} 32 48 64
    DEPENDS ${svg} ${make_ico} ${PROJECT_SOURCE_DIR}/ovoui/tools/svgpixels.py
    VERBATIM)
  set(cursor_files ${cursor_files} ${cur} PARENT_SCOPE)
endfunction()

add_cursor(drag-colour 1,1)
