#include <ovoui/toolbar/ButtonTip.h>

#include <ovoui/frame/Geometry.h>

namespace ovoui::toolbar
{

namespace
{

constexpr int kGap = 2; // pixels to the button

} // namespace

bool ButtonTip::create(CWnd& bar)
{
    if (m_tip.m_hWnd)
        return true;
    if (!m_tip.Create(&bar, TTS_NOPREFIX | TTS_ALWAYSTIP))
        return false;
    m_tool.cbSize = TTTOOLINFOW_V2_SIZE; // understood by all versions of the control
    m_tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    m_tool.hwnd = m_tip.m_hWnd; // the bar's owner hears nothing of it
    m_tool.uId = 1;
    m_tool.lpszText = const_cast<wchar_t*>(L"");
    return m_tip.SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&m_tool)) != 0;
}

UINT ButtonTip::delay() const
{
    return static_cast<UINT>(m_tip.GetDelayTime(m_wasShown ? TTDT_RESHOW : TTDT_INITIAL));
}

UINT ButtonTip::time() const
{
    return static_cast<UINT>(m_tip.GetDelayTime(TTDT_AUTOPOP));
}

void ButtonTip::show(const std::wstring& text, const CRect& button)
{
    m_tool.lpszText = const_cast<wchar_t*>(text.c_str());
    m_tip.SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&m_tool));
    moveTo(CPoint(button.left, button.bottom + kGap));
    m_tip.SendMessage(TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&m_tool));
    m_wasShown = true;

    CRect shown; // the text has given it its size, and some platforms keep it on the screen
    m_tip.GetWindowRect(&shown);
    CRect place(shown);
    if (shown.top < button.bottom || shown.bottom > GetWorkArea(button).bottom)
        place.OffsetRect(0, button.top - kGap - shown.bottom);
    EnsureRectVisible(place);
    if (place != shown)
        moveTo(place.TopLeft());
}

void ButtonTip::moveTo(CPoint place)
{
    m_tip.SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(place.x, place.y));
}

void ButtonTip::hide()
{
    if (m_tip.m_hWnd)
        m_tip.SendMessage(TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&m_tool));
}

} // namespace ovoui::toolbar
