/// Not exported: the tip of a flyout's entry.
#pragma once

#include <ovoui/frame/TipWindow.h>

/// A small window with one line of text.
class CFlyoutTip : public ovoui::frame::TipWindow
{
public:
    CFlyoutTip();

    /// False on failure.
    bool create(CWnd& owner);

    /// Shows a text below or, where there is no room, above a rectangle of the screen.
    void show(const std::wstring& text, const CRect& entry);

private:
    CFont m_statusFont;
};
