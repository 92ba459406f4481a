// Used by Palette.rc
#define IDD_PALETTE_DIALOG 102
#define IDC_COLOURS 1000
#define IDC_CHOSEN 1001
#define ID_COLOUR_FIRST 32800
