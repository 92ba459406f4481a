// Numbers of the resources of the test program.
#pragma once

// Pages 100-119
#define IDD_GENERAL 100
#define IDD_COLOURS 101
#define IDD_LISTS 102
#define IDD_MISSING 119

// Texts 200-219
#define IDS_SHEET 200
#define IDS_COLOURS 201
#define IDS_HEADER 202
#define IDS_SUBHEADER 203

// Controls 1000-1099
#define IDC_NUMBER 1000
#define IDC_OTHER 1001
#define IDC_COMBO 1002

// Commands 0x8001-0x80FF
#define ID_TEST_ACT 0x8001
