// Numbers of the resources of the test program.
#pragma once

#define IDD_BAR 100
#define IDD_CAPTIONED 101

#define IDC_NAME 1000
#define IDC_LIST 1001

// Commands; the toolbars' buttons have numbers from ID_FIRST on
#define ID_ACT 0x8001
#define ID_FIRST 0x8100

// Bars
#define ID_BAR_ONE 0xE820
#define ID_BAR_TWO 0xE821
#define ID_BAR_THREE 0xE822
#define ID_BAR_DIALOG 0xE823
