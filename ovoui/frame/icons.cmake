# The message box's icons: drawn as SVG, packed into icon files while building, compiled into ovoui.dll itself.
set(icon_names computer disccd discfixed discnetwork discremovable exclaim folderclosed folderopen inet info key
               mouse network noteempty notefull ovologo query stop)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(icon_folder ${CMAKE_CURRENT_BINARY_DIR}/icons)
file(MAKE_DIRECTORY ${icon_folder})
set(icon_script "// Written while configuring: the icons, by the names that the message box knows.\n")
set(icon_files "")
foreach(icon ${icon_names})
  set(svg ${CMAKE_CURRENT_LIST_DIR}/icons/${icon}.svg)
  set(ico ${icon_folder}/${icon}.ico)
  add_custom_command(OUTPUT ${ico}
    COMMAND ${OVO_PYTHON} ${PROJECT_SOURCE_DIR}/ovoui/tools/make-ico ${ico} ${svg} 16 32 48
    DEPENDS ${svg} ${PROJECT_SOURCE_DIR}/ovoui/tools/make-ico ${PROJECT_SOURCE_DIR}/ovoui/tools/svgpixels.py
    VERBATIM)
  string(TOUPPER ${icon} resource)
  string(APPEND icon_script "${resource} ICON \"${icon}.ico\"\n")
  list(APPEND icon_files ${ico})
endforeach()
file(CONFIGURE OUTPUT ${icon_folder}/icons.rc CONTENT "${icon_script}" @ONLY)
set_source_files_properties(${icon_folder}/icons.rc PROPERTIES
  OBJECT_DEPENDS "${icon_files}" INCLUDE_DIRECTORIES ${icon_folder})
target_sources(ovoui PRIVATE ${icon_folder}/icons.rc)
