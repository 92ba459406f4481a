#pragma once
#define IDD_PALETTE_EDITOR 101
#define IDC_LIST 1001
#define IDC_ADD 1002
#define IDC_REMOVE 1003
#define IDC_UP 1004
#define IDC_DOWN 1005
#define IDC_TURN 1006
#define IDC_GRID 1007
#define IDC_UNDO 1008
#define IDC_REDO 1009
#define IDC_OPEN 1010
#define IDC_SAVE 1011
