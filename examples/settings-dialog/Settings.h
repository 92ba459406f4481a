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
        const ProfileExchange entry(L"Reading", saving);
        entry(L"Font", font);
        entry(L"Points", points);
        entry(L"Ink", ink);
        entry(L"Paper", paper);
        entry(L"Mark", mark);
        entry(L"Strength", strength);
        entry(L"Angle", angle);
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
