# ovoui_add_manifest(TARGET): gives the program the manifest host.manifest, which lies beside this file: it asks for visual styles
# and for sharp text at every resolution. A program with a manifest of its own does not call it.
function(ovoui_add_manifest target)
  get_property(languages GLOBAL PROPERTY ENABLED_LANGUAGES)
  if(NOT RC IN_LIST languages)
    message(FATAL_ERROR "ovoui_add_manifest: the project needs the language RC, as in project(host LANGUAGES CXX RC)")
  endif()
  set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/manifest.rc")
  target_sources(${target} PRIVATE "${script}")
  set_source_files_properties("${script}" PROPERTIES OBJECT_DEPENDS "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/host.manifest")
endfunction()
