// Numbers of the resources of the test program and of its two extension modules.
#pragma once

// Strings of the program, 1000-1031
#define IDS_FORMAT 1000
#define IDS_MESSAGE_FORMAT 1001
#define IDS_ONE_PLACE 1002
#define IDS_TWO_PLACES 1003
#define IDS_LONG 1004
#define IDS_EMPTY 1005
#define IDS_LAST_OF_BLOCK 1007
#define IDS_FIRST_OF_BLOCK 1008
#define IDS_COMPANY 1009
#define IDS_QUESTION 1010

// Strings that lie in one block of sixteen, 2000-2015, but not all in every module
#define IDS_EVERYWHERE 2000
#define IDS_IN_BOTH_EXTENSIONS 2001
#define IDS_ONLY_IN_FIRST 2002
#define IDS_ONLY_IN_SECOND 2003
#define IDS_ONLY_IN_PROGRAM 2004
#define IDS_NOWHERE 2005

// Other resources, found by number or by name
#define IDD_ONLY_IN_FIRST 2100
#define IDI_PROBE 2101
#define IDC_PROBE 2102
