# Update check: reading the list, the dialog, opening addresses.
set(update_core
  ${CMAKE_CURRENT_LIST_DIR}/core/AddressRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ListLint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/ListSearch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/OfferRules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/PoliteSchedule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/SignatureText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/UpdateRow.cpp
  ${CMAKE_CURRENT_LIST_DIR}/core/VersionText.cpp)

if(NOT WIN32)
  add_library(ovoui_update_core STATIC ${update_core})
  target_include_directories(ovoui_update_core PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(ovoui_update_core PRIVATE ovo_flags PUBLIC ovocor_core)
  return()
endif()

target_sources(ovoui PRIVATE
  ${update_core}
  ${CMAKE_CURRENT_LIST_DIR}/BrowseUrl.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CachedCopy.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PoliteCheck.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SignedFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateAvailable.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateCheck.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateJob.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateMemory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateOffer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateText.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UpdateTextBox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WinInetModule.cpp)
target_link_libraries(ovoui PRIVATE bcrypt shell32)

# The examination of lists for those who publish one.
add_executable(ovo-update-lint ${CMAKE_CURRENT_LIST_DIR}/lint/Main.cpp ${update_core})
ovo_version_record(ovo-update-lint ovo-update-lint.exe VFT_APP "ovoui examination of update lists")
target_link_libraries(ovo-update-lint PRIVATE ovo_flags ovocor)
target_link_options(ovo-update-lint PRIVATE -municode)
