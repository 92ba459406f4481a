// The kinds of controls that hosts put on a shaded tab control.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <iosfwd>
#include <vector>

namespace ovo::testkit
{

/// A kind of control with what it shows. `leaves` is how many of its 90 by 60 pixels it leaves at least to
/// what lies behind: 0 for one that paints all of itself.
struct ControlKind
{
    const char* name;
    const wchar_t* windowClass;
    DWORD style;
    int leaves;
    void (*fill)(CWnd&) = nullptr;
    const wchar_t* text = L"Oak";
};

void PrintTo(const ControlKind& kind, std::ostream* out);

const std::vector<ControlKind>& controlKinds();

/// Makes a shown control of a kind, whose object is `wnd`.
void createControl(CWnd& wnd, const ControlKind& kind, CWnd& parent, CPoint at);

} // namespace ovo::testkit
