/// Not exported: tips that a control shows itself, when and where it wants.
#pragma once

#include <afxwin.h>

#include <commctrl.h>

#include <string>

namespace ovoui::frame
{

/// Where a tip of this size goes for what it tells about, in screen pixels: below it or, where there is no
/// room, above it, inside the work area.
CRect placeOfTip(const CRect& about, CSize size);

/// A tip of the platform's look. It takes neither focus nor mouse.
class Tip
{
public:
    Tip() = default;
    ~Tip();
    Tip(const Tip&) = delete;
    Tip& operator=(const Tip&) = delete;

    /// Which window is the tip's tool, and hears of it.
    enum class Tool
    {
        None, ///< the tip itself: no other window hears
        Owner
    };

    /// Makes the window, if there is none yet; it goes with `owner` at the latest. False on failure.
    bool create(HWND owner, Tool tool);
    void destroy();
    /// Null without a window.
    HWND window() const { return m_tip; }

    void setFont(HFONT font);
    void setText(const std::wstring& text);
    /// For a text at `place`: where the tip around it begins. In screen pixels.
    CPoint cornerAround(const CRect& place) const;

    void showAt(CPoint corner);
    /// Where it was shown last, which is where it was to be: some platforms keep it on the screen.
    CPoint corner() const { return m_corner; }
    /// Shows itself below or above what it tells about.
    void showBeside(const CRect& about);
    void hide();

    /// Milliseconds until a tip comes: less when one was shown already.
    UINT delay() const;
    /// Milliseconds that it stays.
    UINT time() const;

private:
    UINT delayTime(WPARAM which) const;
    void moveTo(CPoint corner);
    void activate(bool active);

    TOOLINFOW info() const;

    HWND m_tip = nullptr;
    HWND m_tool = nullptr;
    CPoint m_corner;
    bool m_wasShown = false;
};

} // namespace ovoui::frame
