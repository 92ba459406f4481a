#include "SliderButtonScene.h"

#include <algorithm>

namespace ovo::testkit
{

void HostUtils::fromDisplay(std::wstring& out, const std::wstring& displayed)
{
    calls.push_back(L"from " + displayed);
    if (misdeed)
        misdeed();
    out = displayed;
    std::replace(out.begin(), out.end(), L',', L'.');
}

void HostUtils::toDisplay(std::wstring& out, const std::wstring& machine)
{
    calls.push_back(L"to " + machine);
    if (misdeed)
        misdeed();
    out = machine + L" mm";
    std::replace(out.begin(), out.end(), L'.', L',');
}

SliderButtonScene::SliderButtonScene()
{
    constexpr DWORD kEdit = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL;
    buddy.Create(kEdit, CRect(10, 10, 100, 32), &parent, kBuddyId);
    other.Create(kEdit, CRect(10, 60, 100, 82), &parent, kOtherId);
    // As a dialog's template makes it: what the button leaves to its window is answered by a static control.
    button->SubclassWindow(::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 102, 10,
                                             16, 22, parent, reinterpret_cast<HMENU>(9), nullptr, nullptr));
    button->SetBuddy(buddy);
    for (const UINT message : {kChanged, kReleased})
        parent.log().record(message);
}

void SliderButtonScene::show(CPoint at)
{
    ::SetCursorPos(0, 0); // where the test before has left it, the button may show its tip
    parent.SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    present(parent);
    other.SetFocus();
    parent.log().clear();
}

std::wstring SliderButtonScene::buddyText() const
{
    CString text;
    buddy.GetWindowText(text);
    return std::wstring(text);
}

HWND SliderButtonScene::popup()
{
    return shownWindow(nullptr, L"#32770");
}

HWND SliderButtonScene::slider()
{
    return ::FindWindowExW(popup(), nullptr, TRACKBAR_CLASSW, nullptr);
}

int SliderButtonScene::thumbX()
{
    CRect thumb;
    ::SendMessageW(slider(), TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    ::MapWindowPoints(slider(), nullptr, reinterpret_cast<POINT*>(&thumb), 2);
    return thumb.CenterPoint().x;
}

int SliderButtonScene::middleOfSlider()
{
    CRect place;
    ::GetWindowRect(slider(), &place);
    return place.CenterPoint().y;
}

std::vector<UINT> SliderButtonScene::told()
{
    std::vector<UINT> messages;
    for (const Notification& note : parent.log().all())
        if (note.message == kChanged || note.message == kReleased)
            messages.push_back(note.message);
    return messages;
}

void SliderButton::open()
{
    user.click(Spot{*button}).waitFor("the popup", &isOpen);
    parent.log().clear();
}

} // namespace ovo::testkit
