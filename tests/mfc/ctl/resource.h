// What the tests load along the resource chain.
#pragma once

#define IDB_SQUARES 101  // three pictures of 4 by 4 pixels: red, green, blue
#define IDB_RELEASED 102 // 4 by 4 pixels of one colour, as the following
#define IDB_PRESSED 103
#define IDB_FOCUSED 104
#define IDB_DISABLED 105
#define IDB_NONE 199 // no such bitmap

#define IDS_TIP 201
#define IDS_BUTTONS 202
#define IDS_BESIDE_READY 0xE00F // in the block of AFX_IDS_IDLEMESSAGE, which only the framework has
