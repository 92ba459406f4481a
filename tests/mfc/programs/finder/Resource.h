// Used by Finder.rc
#define IDD_FIND 101
#define IDR_MAINFRAME 128
#define IDC_WHAT 1000
#define IDC_MATCH_CASE 1001
#define IDC_FIND_NEXT 1002
#define IDC_TEXT 1003
