/// What OVOMessageBox knows beyond the platform's MB_ flags and button ids. No windows.h needed.
#pragma once

/// Low nibble 1 to 5 of the type selects an extended button set:
/// 1 Yes, Yes to all, No, Cancel; 2 Yes, No, No to all, Cancel; 3 Yes, Yes to all, No, No to all, Cancel;
/// 4 Yes, Yes to all, No, No to all; 5 Yes, No, No to all.
inline constexpr unsigned OVOMB_EXTBUTTONS = 0x01000000;

/// Icon nibble 0x10 to 0xE0 of the type selects an extended icon: computer, fixed, network and removable
/// disc, CD, closed and open folder, internet, logo, key, mouse, network, empty note, full note.
inline constexpr unsigned OVOMB_EXTICONS = 0x02000000;

/// Lets the default-button value be 0x400 (fifth button) or 0x500 (sixth).
inline constexpr unsigned OVOMB_EXTDEFBUTTON = 0x04000000;

/// Result of the button "Yes to all".
inline constexpr int IDYESTOALL = 1298;
/// Result of the button "No to all".
inline constexpr int IDNOTOALL = 1299;
