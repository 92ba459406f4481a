// Numbers of the resources of the test program.
#pragma once

// Dialogs 100-119
#define IDD_PLAIN 100
#define IDD_LISTS 101
#define IDD_FORM 102
#define IDD_MISSING 119

// A frame's menu, accelerators, title, toolbar and its bitmap 120-129
#define IDR_FRAME 120
#define IDR_POPUP 121
#define IDR_NO_BITMAP 122
#define IDR_HELP_KEYS 123
#define IDR_FRAME_MISSING 129

// Controls 1000-1099
#define IDC_NAME 1000
#define IDC_ACT 1001
#define IDC_LIST 1002
#define IDC_COMBO 1003

// Commands 0x8001-0x80FF, with prompts of the same number
#define ID_TEST_ACT 0x8001
#define ID_TEST_OTHER 0x8002
#define ID_TEST_UNHANDLED 0x8003
#define ID_TEST_FIRST 0x8010
#define ID_TEST_SECOND 0x8011

// Indicators 0x8100-0x810F
#define ID_INDICATOR_TREE 0x8100
#define ID_INDICATOR_WIDE 0x8101
#define ID_INDICATOR_MISSING 0x810F
