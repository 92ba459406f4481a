// Used by UnitsExt.rc. The tool's own numbers begin elsewhere.
#define IDD_CONVERT 3001
#define IDC_METRES 3010
#define IDC_FEET 3011
#define IDC_CONVERT 3012
#define IDS_FEET 3020
