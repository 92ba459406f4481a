// Internal to the window engine and the dialogs: bits of CWnd::m_nFlags.
#pragma once

namespace afxdetail
{

inline constexpr unsigned kToolTips = 0x0001;
inline constexpr unsigned kBorrowed = 0x0002; // the window is not the object's to destroy
inline constexpr unsigned kModalLoop = 0x0010;
inline constexpr unsigned kContinueModal = 0x0020;
inline constexpr unsigned kOwnerLocked = 0x0040; // the owner was disabled when the modal window opened

} // namespace afxdetail
