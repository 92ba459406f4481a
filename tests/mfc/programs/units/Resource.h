// Used by Units.rc
#define IDD_UNITS_DIALOG 102
#define IDC_OPEN 1000
#define IDC_LAST 1001
