#include <ovoui/frame/Tip.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Geometry.h>

namespace ovoui::frame
{

CRect placeOfTip(const CRect& about, CSize size)
{
    RECT place = toRect(tipPlace(toBox(about), size.cx, size.cy, toBox(GetWorkArea(about))));
    EnsureRectVisible(place);
    return place;
}

Tip::~Tip()
{
    destroy();
}

TOOLINFOW Tip::info() const
{
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE; // understood by all versions of the control
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = m_tool;
    tool.uId = 1;
    tool.lpszText = const_cast<wchar_t*>(L"");
    return tool;
}

bool Tip::create(HWND owner, Tool tool)
{
    if (::IsWindow(m_tip))
        return true;
    m_tip = ::CreateWindowExW(WS_EX_TOPMOST | WS_EX_TRANSPARENT, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, owner, nullptr, nullptr,
                              nullptr);
    m_tool = tool == Tool::Owner ? owner : m_tip;
    TOOLINFOW added = info();
    if (m_tip && ::SendMessageW(m_tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&added)))
        return true;
    destroy(); // without a tool it would never show anything
    return false;
}

void Tip::destroy()
{
    if (::IsWindow(m_tip))
        ::DestroyWindow(m_tip);
    m_tip = nullptr;
}

void Tip::setFont(HFONT font)
{
    ::SendMessageW(m_tip, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void Tip::setText(const std::wstring& text)
{
    TOOLINFOW tool = info();
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    ::SendMessageW(m_tip, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

CPoint Tip::cornerAround(const CRect& place) const
{
    RECT around = place;
    ::SendMessageW(m_tip, TTM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&around));
    return {around.left, around.top};
}

void Tip::showAt(CPoint corner)
{
    moveTo(corner);
    activate(true);
    m_wasShown = true;
}

void Tip::showBeside(const CRect& about)
{
    const CPoint wanted = placeOfTip(about, CSize(0, 0)).TopLeft();
    showAt(wanted);
    CRect shown; // the text has given it its size, and some platforms keep it on the screen
    ::GetWindowRect(m_tip, &shown);
    const CPoint corner = placeOfTip(about, shown.Size()).TopLeft();
    if (corner != wanted)
        moveTo(corner);
}

void Tip::hide()
{
    if (m_tip)
        activate(false);
}

UINT Tip::delay() const
{
    return delayTime(m_wasShown ? TTDT_RESHOW : TTDT_INITIAL);
}

UINT Tip::time() const
{
    return delayTime(TTDT_AUTOPOP);
}

UINT Tip::delayTime(WPARAM which) const
{
    return static_cast<UINT>(::SendMessageW(m_tip, TTM_GETDELAYTIME, which, 0));
}

void Tip::moveTo(CPoint corner)
{
    m_corner = corner;
    ::SendMessageW(m_tip, TTM_TRACKPOSITION, 0, MAKELPARAM(corner.x, corner.y));
}

void Tip::activate(bool active)
{
    TOOLINFOW tool = info();
    ::SendMessageW(m_tip, TTM_TRACKACTIVATE, active, reinterpret_cast<LPARAM>(&tool));
}

} // namespace ovoui::frame
