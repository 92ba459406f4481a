// What can be set, where it is kept, and how a page looks with it.
#pragma once

#include <ovoui/ovoui.h>

#include <cmath>

struct Settings
{
    CString font = L"Georgia";
    double points = 11;
    COLORREF ink = RGB(40, 36, 30);
    COLORREF paper = RGB(252, 247, 235);
    CString mark = L"DRAFT";
    double strength = 0.12; ///< of the ink in the mark, 0 to 1
    double angle = -35;     ///< degrees, clockwise

    /// From the profile, or into it.
    void exchange(bool saving)
    {
        text(saving, L"Font", font);
        number(saving, L"Points", points, 10);
        number(saving, L"Ink", ink, 1);
        number(saving, L"Paper", paper, 1);
        text(saving, L"Mark", mark);
        number(saving, L"Strength", strength, 1000);
        number(saving, L"Angle", angle, 1);
    }

    void draw(CDC& dc, const CRect& page, const CString& text) const
    {
        dc.FillSolidRect(&page, paper);
        dc.SetBkMode(TRANSPARENT);
        const int dots = dc.GetDeviceCaps(LOGPIXELSY);
        drawMark(dc, page, -dots / 2);
        CRect rest = page;
        rest.DeflateRect(dots / 12, dots / 12);
        CFont face;
        face.CreateFont(-static_cast<int>(std::lround(points * dots / 72)), 0, 0, 0, FW_NORMAL, FALSE, FALSE,
                        FALSE, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0, font);
        CFont* const old = dc.SelectObject(&face);
        dc.SetTextColor(ink);
        dc.DrawText(text, &rest, DT_WORDBREAK | DT_NOPREFIX);
        dc.SelectObject(old);
    }

private:
    static constexpr wchar_t kSection[] = L"Reading";

    static void text(bool saving, LPCWSTR entry, CString& value)
    {
        if (saving)
            AfxGetApp()->WriteProfileString(kSection, entry, value);
        else
            value = AfxGetApp()->GetProfileString(kSection, entry, value);
    }

    /// The profile has whole numbers: so many times the value.
    template <class Number>
    static void number(bool saving, LPCWSTR entry, Number& value, int times)
    {
        const int whole = static_cast<int>(std::lround(1.0 * value * times));
        if (saving)
            AfxGetApp()->WriteProfileInt(kSection, entry, whole);
        else
            value =
                static_cast<Number>(static_cast<int>(AfxGetApp()->GetProfileInt(kSection, entry, whole))) /
                times;
    }

    /// In the middle of the page, in a colour between paper and ink.
    void drawMark(CDC& dc, const CRect& page, int height) const
    {
        const auto mixed = [this](int one, int other) {
            return one + static_cast<int>((other - one) * strength);
        };
        CFont face;
        face.CreateFont(height, 0, -static_cast<int>(angle * 10), -static_cast<int>(angle * 10), FW_BOLD,
                        FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_TT_ONLY_PRECIS, 0, ANTIALIASED_QUALITY, 0,
                        L"Arial");
        CFont* const old = dc.SelectObject(&face);
        dc.SetTextColor(RGB(mixed(GetRValue(paper), GetRValue(ink)), mixed(GetGValue(paper), GetGValue(ink)),
                            mixed(GetBValue(paper), GetBValue(ink))));
        const CSize size = dc.GetTextExtent(mark);
        const double turn = -angle * 3.14159265358979 / 180;
        const double right = size.cx / 2.0, up = -size.cy / 2.0; // from the middle to the text's corner
        const int x = page.CenterPoint().x - static_cast<int>(right * std::cos(turn) - up * std::sin(turn));
        const int y = page.CenterPoint().y + static_cast<int>(right * std::sin(turn) + up * std::cos(turn));
        dc.ExtTextOut(x, y, ETO_CLIPPED, &page, mark, nullptr);
        dc.SelectObject(old);
    }
};
