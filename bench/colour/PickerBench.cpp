// A step of a drag against the calls that cannot be avoided.
#include <ovoui/colour/ColPickerDlg.h>

#include "support/InTurns.h"

#include <catch2/catch.hpp>

#include <objidl.h>
#include <gdiplus.h>

#include <cmath>
#include <memory>
#include <vector>

namespace
{

class GdiPlus
{
public:
    GdiPlus()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

class Picker : public ColPickerDlg
{
public:
    Picker()
        : ColPickerDlg(*AfxGetApp(), ColPickerModeRGB, Colour::rgb(1, 0.5, 0), nullptr, nullptr)
    {
        createColPickerDlgBase();
        UpdateWindow();
    }
    ~Picker() override { DestroyWindow(); }

    using ColPickerDlg::m_slider1;
    using ColPickerDlg::m_slider2;
    using ColPickerDlg::m_slider3;
    using ColPickerDlg::m_value1;
    using ColPickerDlg::m_value2;
    using ColPickerDlg::m_value3;
    using ColPickerDlg::m_wheelRect;

    CPoint onRing(double degrees) const
    {
        const double radius = std::min(m_wheelRect.Width(), m_wheelRect.Height()) / 2 * 0.88;
        const Angle angle = Angle::degrees(degrees);
        const CPoint centre = m_wheelRect.CenterPoint();
        return {centre.x + static_cast<int>(std::lround(radius * angle.cos())),
                centre.y + static_cast<int>(std::lround(radius * angle.sin()))};
    }
};

/// Both end when all that changed has been painted and drawn.
void finishPainting(CWnd& dialog)
{
    dialog.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

} // namespace

TEST_CASE("a step of a drag on the ring")
{
    const GdiPlus gdiPlus;
    Picker picker;
    picker.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOSIZE); // nothing covers a part of it
    const CRect wheel = picker.m_wheelRect;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(wheel.Width() * wheel.Height()), 0);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = i / 16 % 2 ? 0xFF336699 : 0; // half of them transparent, as beside ring and triangle
    Gdiplus::Bitmap bitmap(wheel.Width(), wheel.Height(), wheel.Width() * 4, PixelFormat32bppARGB,
                           reinterpret_cast<BYTE*>(pixels.data()));
    int step = 0;
    const CPoint from = picker.onRing(0);
    const auto byHand = [&] {
        const int value = ++step * 7 % 250;
        for (CSliderCtrl* const slider : {&picker.m_slider1, &picker.m_slider2, &picker.m_slider3})
            slider->SetPos(value);
        for (CEdit* const edit : {&picker.m_value1, &picker.m_value2, &picker.m_value3})
            edit->SetWindowText(std::to_wstring(value).c_str());
        {
            CClientDC dc(&picker);
            Gdiplus::Graphics graphics(dc.m_hDC);
            graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
            graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
            graphics.DrawImage(&bitmap, wheel.left, wheel.top, wheel.Width(), wheel.Height());
        }
        finishPainting(picker);
    };
    const auto drag = [&] {
        const CPoint to = picker.onRing(++step * 7);
        picker.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
        finishPainting(picker);
    };
    picker.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    finishPainting(picker);
    InTurns turns;
    turns.add("three positions, three texts, drawing the bitmap [baseline]", byHand,
              [&] { finishPainting(picker); });
    turns.add("WM_MOUSEMOVE [at most 1.3]", drag, [&] { finishPainting(picker); });
    turns.run("a step of a drag on the ring, painted", 301);
    picker.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(from.x, from.y));
}
