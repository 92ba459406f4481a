#pragma once

// A bitmap, and the toolbar resource of the same number
#define IDR_SHAPES 201

#define IDR_TEST_KEYS 202 // accelerators

// Commands
#define ID_PLAIN 301
#define ID_OTHER 302
#define ID_SAVE 303
#define ID_COPY_ALL 304
#define ID_LINE 311
#define ID_CURVE 312
#define ID_ARC 313
#define ID_NAMELESS 314 // without a string
#define ID_BOX 321      // buttons of IDR_SHAPES
#define ID_DISC 322
#define ID_STAR 323
#define ID_RING 324

// Controls in bars
#define IDC_BAR_EDIT 401
#define IDC_BAR_COMBO 402

// The tool window's template, and its string
#define IDD_PALETTE 501
#define IDS_PALETTE 502
#define IDC_PALETTE_EDIT 511
#define IDC_PALETTE_CHECK 512
#define IDC_PALETTE_SLIDER 513
