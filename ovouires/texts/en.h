// English. The texts of the other languages have the same names, and what stands after // here holds for all of them.
//
// The letter after & is pressed with Alt; it occurs once among the texts that are shown together. What is in double
// quotes is a format: the same specifiers in the same order in every language.
#pragma once

#define TEXT_PRIMARY_LANGUAGE LANG_ENGLISH
#define TEXT_REGION SUBLANG_ENGLISH_US
#define TEXT_LANGUAGE "en"

// Buttons of the message box. The library takes these where a string is missing in the resource module.
#define TEXT_BUTTON_ABORT "&Abort"
#define TEXT_BUTTON_OK "OK"
#define TEXT_BUTTON_CANCEL "Cancel"
#define TEXT_BUTTON_RETRY "&Retry"
#define TEXT_BUTTON_IGNORE "&Ignore"
#define TEXT_BUTTON_YES "&Yes"
#define TEXT_BUTTON_NO "&No"
#define TEXT_BUTTON_YES_TO_ALL "Yes to &All"
#define TEXT_BUTTON_NO_TO_ALL "N&o to All"
#define TEXT_BUTTON_HELP "&Help"

// Message box
#define TEXT_MESSAGE_CAPTION "Message"
#define TEXT_MESSAGE_NOT_AGAIN "Do not &show this message again"
#define TEXT_MESSAGE_SHOW_DETAILS "&Details >>"
#define TEXT_MESSAGE_HIDE_DETAILS "<< &Details"

// Several dialogs
#define TEXT_CLOSE "Close"

// Colour picker: the captions of a colour model are shown together, below those of the dialog.
#define TEXT_COLOUR "Colour"
#define TEXT_COLOUR_MODEL "Colour &model:"
#define TEXT_COLOUR_BEFORE "Colour before"
#define TEXT_COLOUR_ALPHA "&Alpha:"
#define TEXT_COLOUR_FROM_SCREEN "From s&creen"
#define TEXT_COLOUR_NAME_OR_CODE "&Name or code:"
#define TEXT_COLOUR_RECENT_LABEL "R&ecent:"
#define TEXT_COLOUR_CUSTOM_LABEL "C&ustom:"
#define TEXT_COLOUR_RED "&Red:"
#define TEXT_COLOUR_GREEN "&Green:"
#define TEXT_COLOUR_BLUE "&Blue:"
#define TEXT_COLOUR_HUE "&Hue:"
#define TEXT_COLOUR_SATURATION "&Saturation:"
#define TEXT_COLOUR_VALUE "&Value:"
#define TEXT_COLOUR_LIGHTNESS "&Lightness:"
// Ratio and grade on white, and on black
#define TEXT_COLOUR_CONTRAST "Contrast as text: on white %s (%s), on black %s (%s)"
#define TEXT_COLOUR_GRADE_LARGE "AA large" // the grade AA, which large text alone reaches
// What accessibility is told: names, the value of the triangle, and actions
#define TEXT_COLOUR_RING "Hue"
#define TEXT_COLOUR_TRIANGLE "Lightness and saturation"
#define TEXT_COLOUR_SHADE "lightness %d, saturation %d"
#define TEXT_COLOUR_CUSTOM "Custom colours"
#define TEXT_COLOUR_RECENT "Recent colours"
#define TEXT_COLOUR_TAKE "Take"
#define TEXT_COLOUR_OPEN "Open"
// Below the colours that a colour button drops
#define TEXT_COLOUR_MORE "&More colours..."

// Sliders: the least and the greatest number, with what the host shows beside them, such as a unit
#define TEXT_SLIDER_RANGE "Enter a number from %s to %s."

// System information
#define TEXT_SYSTEM_INFO "System Information"
#define TEXT_SYSTEM_INFO_MODULES "&Loaded modules:"
#define TEXT_SYSTEM_INFO_COPY "&Copy"
#define TEXT_MODULES "Loaded Modules"
#define TEXT_MODULES_FILTER "&Filter:"
#define TEXT_MODULES_LIST "&Modules:"
#define TEXT_MODULES_REFRESH "&Refresh"
#define TEXT_MODULES_COPY_AS "&Copy As..."
#define TEXT_MODULES_AS_TEXT "&Text with Tabs"
#define TEXT_MODULES_AS_MARKDOWN "&Markdown Table"
#define TEXT_MODULES_AS_JSON "&JSON"
#define TEXT_MODULES_COUNT "%Iu of %Iu modules" // shown, and all
#define TEXT_MODULES_NAME "Name"
#define TEXT_MODULES_REMARK "Remark"
#define TEXT_MODULES_FILE_VERSION "File version"
#define TEXT_MODULES_PRODUCT_VERSION "Product version"
#define TEXT_MODULES_DESCRIPTION "Description"
#define TEXT_MODULES_PATH "Path"
#define TEXT_MODULES_LINKED "Linked" // when
#define TEXT_MODULES_ADDRESS "Address"
#define TEXT_MODULES_SIZE "Size"
#define TEXT_MODULES_TYPE "Type"
#define TEXT_MODULES_FLAGS "Flags"
#define TEXT_MODULES_SYSTEM "System"
// Remarks on a module
#define TEXT_MODULES_NO_VERSION "no version record"
#define TEXT_MODULES_ELSEWHERE "other folder"
#define TEXT_MODULES_NO_VERSION_ELSEWHERE "no version record, other folder"

// Toolbars: what accessibility is told that a button does
#define TEXT_ACTION_PRESS "Press"

// Tree
#define TEXT_DELETE_ONE "Are you sure you want to delete “%s”?"
#define TEXT_DELETE_MANY "Are you sure you want to delete these %d items?"
#define TEXT_DELETE_CAPTION "Confirm Delete"
#define TEXT_MENU_CUT "Cu&t\tCtrl+X"
#define TEXT_MENU_COPY "&Copy\tCtrl+C"
#define TEXT_MENU_PASTE "&Paste\tCtrl+V"
#define TEXT_MENU_DELETE "&Delete\tDel"
#define TEXT_MENU_RENAME "Rena&me\tF2"
#define TEXT_MENU_SELECT_ALL "Select &All\tCtrl+A"
#define TEXT_DROP_MOVE "&Move Here"
#define TEXT_DROP_COPY "&Copy Here"
#define TEXT_DROP_LINK "Create &Link Here"
// The same with the name of what is dropped
#define TEXT_DROP_MOVE_NAMED "&Move %s Here"
#define TEXT_DROP_COPY_NAMED "&Copy %s Here"
#define TEXT_DROP_LINK_NAMED "Create &Link to %s Here"

// Update check
#define TEXT_UPDATE_CHECK "Check for Updates"
#define TEXT_UPDATE_OFFER "Update Available"
#define TEXT_UPDATE_OPEN_PAGE "&Open Page"
#define TEXT_UPDATE_LATER "Remind Me &Later"
#define TEXT_UPDATE_SKIP "&Skip This Version"
// The description, the product, the address of the page
#define TEXT_UPDATE_AVAILABLE "A newer version is available:\n%s\n\nThis update is for %s. The following page describes it:\n%s\n\nDo you want to open the page now?"
// The product
#define TEXT_UPDATE_NONE "%s is up to date."
