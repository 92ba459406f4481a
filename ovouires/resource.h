// Every number in the resource module, sorted within its block. Hosts know these numbers: none is ever changed.
#pragma once

// Commands of the tree: 1001 to 5999
#define ID_DROP_COPY 1191
#define ID_DROP_LINK 1194
#define ID_TREE_DELETE 5146
#define ID_TREE_REDRAW 5234
#define ID_TREE_RENAME 5598
#define ID_DROP_MOVE 5610

// Dialogs: 1501 to 1599
#define IDD_MESSAGE_BOX 1505

// Menus and accelerator tables: 7401 to 7499
#define IDR_TREE_ACCELERATORS 7471
#define IDR_DROP_MENU 7472

// Strings: 20100 to 20199
#define IDS_BUTTON_ABORT 20100
#define IDS_BUTTON_OK 20101
#define IDS_BUTTON_CANCEL 20102
#define IDS_BUTTON_RETRY 20103
#define IDS_BUTTON_IGNORE 20104
#define IDS_BUTTON_YES 20105
#define IDS_BUTTON_NO 20106
#define IDS_BUTTON_YES_TO_ALL 20107
#define IDS_BUTTON_NO_TO_ALL 20108
#define IDS_BUTTON_HELP 20109
#define IDS_MESSAGE_CAPTION 20110
#define IDS_DELETE_ONE 20112
#define IDS_DELETE_MANY 20113
#define IDS_DELETE_CAPTION 20114
#define IDS_MENU_CUT 20121
#define IDS_MENU_COPY 20122
#define IDS_MENU_PASTE 20123
#define IDS_MENU_DELETE 20124
#define IDS_MENU_RENAME 20125
#define IDS_MENU_SELECT_ALL 20126

// Controls: 20501 to 20599
#define IDC_MESSAGE_TEXT 20507
