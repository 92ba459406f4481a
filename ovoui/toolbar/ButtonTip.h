/// Not exported: the tip of the button that the keyboard is at. It looks and waits as the tips do that the
/// mouse brings.
#pragma once

#include <afxcmn.h>

#include <string>

namespace ovoui::toolbar
{

class ButtonTip
{
public:
    /// False when there is no window for it.
    bool create(CWnd& bar);

    /// Milliseconds until the tip comes: less when one was shown already.
    UINT delay() const;
    /// Milliseconds that it stays.
    UINT time() const;

    /// Shows a text below or, where there is no room, above a rectangle of the screen.
    void show(const std::wstring& text, const CRect& button);
    void hide();

private:
    void moveTo(CPoint place);

    CToolTipCtrl m_tip;
    TOOLINFOW m_tool{};
    bool m_wasShown = false;
};

} // namespace ovoui::toolbar
