// The picker in a dialog that is laid out from right to left. Ring and triangle look as always; points here
// are counted from the left of the screen.
#include "PickerScene.h"

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/colour/core/WheelRaster.h>
#include <ovoui/frame/ThemeData.h>

#include <cmath>
#include <random>

using namespace ovo::testkit;

namespace
{

/// A rectangle of a window's client area in the coordinates of the screen.
CRect onScreen(const CWnd& wnd, CRect rect)
{
    wnd.ClientToScreen(&rect);
    return rect;
}

/// What is seen of a window's client area, whichever way it is laid out.
Picture seen(CWnd& wnd)
{
    wnd.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect client;
    wnd.GetClientRect(&client);
    Picture picture(client.Width(), client.Height());
    CClientDC dc(&wnd);
    dc.SetLayout(0);
    ::BitBlt(picture.dc(), 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    return picture;
}

/// Where a rectangle of the client area lies in what is seen of it.
CRect placeIn(const CWnd& wnd, const CRect& rect)
{
    CRect client;
    wnd.GetClientRect(&client);
    return {client.right - rect.right, rect.top, client.right - rect.left, rect.bottom};
}

class PickerMirrored : public PickerScene
{
protected:
    PickerMirrored() { keyboard = true; }

    /// `wider` by so many pixels is the wheel than in the template.
    void openMirrored(const Colour& colour = kOrange, int wider = 0)
    {
        openSwatches(kMirroredTemplate, colour, [this, wider] {
            CRect place;
            CWnd* const wheel = host->GetDlgItem(kWheel);
            wheel->GetWindowRect(&place);
            wheel->SetWindowPos(nullptr, 0, 0, place.Width() + wider, place.Height(),
                                SWP_NOMOVE | SWP_NOZORDER);
        });
        host->GetDlgItem(IDOK)->SetFocus(); // which leaves ring and triangle without a mark
        ASSERT_TRUE(host->GetExStyle() & WS_EX_LAYOUTRTL);
    }

    /// The ring as it is seen, in pixels of the screen.
    ovoui::colour::HueRing ring() const
    {
        const CRect wheel = onScreen(*host, host->m_wheelRect);
        return ovoui::colour::ringIn({wheel.left, wheel.top, wheel.right, wheel.bottom});
    }
    static Spot at(Vector<2> point)
    {
        return Spot{
            CPoint(static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y())))};
    }
    Spot atHue(double degrees) const { return at(ring().marker(Angle::degrees(degrees))); }
    Spot atShade(double lightness, double saturation) const
    {
        return at(ovoui::colour::triangleIn(ring()).marker(lightness, saturation));
    }

    double hueNow() const { return host->GetColour().h_hls().degrees(); }
};

using Pixels = std::vector<std::uint32_t>;

/// Ring and triangle pixel by pixel; 0 where neither is.
Pixels wheelPixels(const CRect& wheel, Angle hue)
{
    const ovoui::colour::WheelRaster raster({wheel.left, wheel.top, wheel.right, wheel.bottom});
    Pixels pixels(static_cast<std::size_t>(wheel.Width() * wheel.Height()), 0);
    raster.drawRing(pixels.data());
    raster.drawTriangle(pixels.data(), hue);
    return pixels;
}

COLORREF colourOf(std::uint32_t pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

} // namespace

TEST_F(PickerMirrored, RingAndTriangleLookAsAlways)
{
    openMirrored(Colour::hls(Angle::degrees(200), 0.25, 0.5));
    const Picture picture = seen(*host);
    const CRect wheel = placeIn(*host, host->m_wheelRect);
    const Pixels pixels = wheelPixels(wheel, Angle::degrees(200));
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    int other = 0;
    for (int y = 0; y < wheel.Height(); ++y)
        for (int x = 0; x < wheel.Width(); ++x) {
            const std::uint32_t pixel = pixels[static_cast<std::size_t>(y * wheel.Width() + x)];
            other += picture.at(wheel.left + x, wheel.top + y) != (pixel ? colourOf(pixel) : face);
        }
    const int radius = ovoui::colour::markerRadius(ring());
    EXPECT_GT(other, 0) << "the markers";
    EXPECT_LT(other, 12 * radius);
}

TEST_F(PickerMirrored, TheMarkersStandWhereTheColourIsSeen)
{
    openMirrored(
        Colour::hls(Angle::degrees(90), 0.25, 1)); // the middle of the left edge, and of the left side
    const Picture picture = seen(*host);
    const CRect wheel = placeIn(*host, host->m_wheelRect);
    const auto shown = ovoui::colour::ringIn({wheel.left, wheel.top, wheel.right, wheel.bottom});
    const auto pixel = [](Vector<2> point) {
        return CPoint(static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y())));
    };
    const int radius = ovoui::colour::markerRadius(shown);
    const Pixels pixels = wheelPixels(wheel, Angle::degrees(90));
    const auto plain = [&](CPoint point) {
        return colourOf(
            pixels[static_cast<std::size_t>((point.y - wheel.top) * wheel.Width() + point.x - wheel.left)]);
    };
    const CPoint above = pixel(shown.marker(Angle::degrees(90))) - CSize(0, radius);
    EXPECT_EQ(picture.at(above), plain(above) ^ 0x00FFFFFF) << "the circle";
    const CPoint middle = pixel(ovoui::colour::triangleIn(shown).marker(0.25, 1));
    EXPECT_EQ(picture.at(middle + CSize(3, 0)), plain(middle + CSize(3, 0)) ^ 0x00FFFFFF) << "the cross";
    EXPECT_EQ(picture.at(middle + CSize(0, 3)), plain(middle + CSize(0, 3)) ^ 0x00FFFFFF);
}

// The pointer is at most half a pixel beside a place in each direction. Along an edge of the ring, which is
// as long as the inner radius, a pixel is worth 60 / inner degrees.
TEST_F(PickerMirrored, TheUserPicksWhatTheUserSees)
{
    openMirrored();
    const double hueBound = std::sqrt(0.5) * 60 / ring().inner() + 1e-9;
    const auto triangle = ovoui::colour::triangleIn(ring());
    for (const double degrees : {10.0, 45.0, 60.0, 90.0, 160.0, 200.0, 300.0, 350.0}) {
        user.click(atHue(degrees));
        EXPECT_NEAR(hueNow(), degrees, hueBound);
    }
    user.drag(atShade(0.3, 0.5), atShade(0.8, 0.4));
    EXPECT_NEAR(host->GetColour().l_hls(), 0.8, 0.5 / triangle.rect().width());
    EXPECT_NEAR(host->GetColour().s_hls(), 0.4, 1.5 / (0.4 * triangle.rect().height())) << "k is 0.4 there";
    user.drag(atHue(180), atHue(60));
    EXPECT_NEAR(hueNow(), 60, hueBound);
    user.doubleClick(atHue(240));
    EXPECT_NEAR(hueNow(), 240, hueBound);
    EXPECT_NEAR(host->GetColour().s_hls(), 1, 1e-9);
}

TEST_F(PickerMirrored, SwatchesFollowTheLayout)
{
    openMirrored();
    host->UpdateWindow();
    EXPECT_GT(onScreen(*host, host->m_swatches[0]).left, onScreen(*host, host->m_swatches[8]).left);
    user.drag(Spot{onScreen(*host, host->m_patchRect).CenterPoint()},
              Spot{onScreen(*host, host->m_swatches[4]).CenterPoint()});
    EXPECT_EQ(host->custom[4], RGB(255, 128, 0));
    user.click(Spot{onScreen(*host, host->m_swatches[12]).CenterPoint()});
    EXPECT_EQ(host->GetColour().colorref(), host->custom[12]);
}

TEST_F(PickerMirrored, KeysGoWhereTheyPoint)
{
    openMirrored(Colour::hls(Angle::degrees(200), 0.5, 0.5));
    const auto lightness = [this] { return std::lround(host->GetColour().l_hls() * 100); };
    host->GetDlgItem(20566)->SetFocus(); // the triangle
    user.key(VK_RIGHT);
    EXPECT_EQ(lightness(), 51) << "towards white";
    user.key(VK_LEFT, 2);
    EXPECT_EQ(lightness(), 49);

    host->GetDlgItem(20567)->SetFocus(); // the swatches
    user.key(VK_LEFT).key(VK_SPACE);
    EXPECT_EQ(host->GetColour().colorref(), host->custom[1]);
}

// An uneven number of columns has no two equal halves.
TEST_F(PickerMirrored, TheStopsLieOverRingAndTriangle)
{
    for (const int wider : {0, 1}) {
        openMirrored(kOrange, wider);
        CRect triangle;
        host->GetDlgItem(20566)->GetWindowRect(&triangle);
        const ovoui::frame::Box inner = ovoui::colour::triangleIn(ring()).rect();
        EXPECT_EQ(triangle, CRect(inner.left, inner.top, inner.right, inner.bottom)) << wider;
        host->DestroyWindow();
    }
}

TEST_F(PickerMirrored, MovesOfTheMarkersAndTheFocusLeaveNoTrace)
{
    openMirrored();
    std::mt19937 random(5);
    std::uniform_real_distribution<double> part(0, 1);
    for (int i = 0; i < 200; ++i) {
        host->SetColour(host.get(),
                        Colour::hls(Angle::degrees(360 * part(random)), part(random), part(random)), true);
        if (i % 3 == 0)
            host->UpdateWindow();
        if (i % 7 == 0)
            host->GetDlgItem(i % 2 == 0 ? 20565 : 20566)->SetFocus();
    }
    host->GetDlgItem(IDOK)->SetFocus();
    const Picture worn = seen(*host);
    host->Invalidate(TRUE);
    EXPECT_EQ(worn.differences(seen(*host)), 0);
}

// On a shaded tab control

namespace
{

/// A shaded tab control in a theme of the test's own: each pixel has a colour that tells where it is.
class StripedTabs : public CShadedTabCtrl
{
public:
    static COLORREF pixelOf(int x, int y) { return RGB(3 * x & 0xFF, 5 * y & 0xFF, 60); }

protected:
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM)
    {
        CRect window;
        GetWindowRect(&window);
        for (int y = 0; y < window.Height(); ++y)
            for (int x = 0; x < window.Width(); ++x)
                ::SetPixelV(reinterpret_cast<HDC>(dc), x, y, pixelOf(x, y));
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(StripedTabs, CShadedTabCtrl)
    ON_MESSAGE(WM_PRINTCLIENT, &StripedTabs::OnPrintClient)
END_MESSAGE_MAP()

/// A picker on a page of striped tabs, after many moves of its markers.
class PickerOnStripes : public PickerScene, public ::testing::WithParamInterface<DWORD>
{
protected:
    PickerOnStripes()
    {
        frame.CreateEx(GetParam(), AfxRegisterWndClass(0), L"frame", WS_POPUP, 100, 100, 460, 360, nullptr,
                       nullptr);
        tabs.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(10, 10, 440, 340), &frame, 1);
    }
    ~PickerOnStripes() override { frame.DestroyWindow(); }

    /// What is seen of a page of this template.
    Picture pageSeen(int dialogTemplate, bool told)
    {
        HostPicker page(dialogTemplate, TestApp::instance(), Colour::rgb(1, 0, 0), nullptr, nullptr);
        page.tabs = &tabs;
        page.Create(static_cast<UINT>(dialogTemplate), &tabs);
        page.SetWindowPos(nullptr, 15, 30, 350, 240, SWP_NOZORDER);
        page.ShowWindow(SW_SHOW);
        present(frame);
        seen(page); // in the tabs' pattern, whichever way the markers' is found afterwards
        page.tabs = told ? &tabs : nullptr;
        for (int i = 0; i < 40; ++i) {
            // The cross goes along both sides of the triangle and the base, beyond which it reaches.
            const double lightness = (i % 11) / 10.0;
            page.SetColour(&page, Colour::hls(Angle::degrees(i * 9), lightness, i % 3 == 0 ? 0 : 1), true);
            page.UpdateWindow();
        }
        last = page.GetColour();
        wheel = page.m_wheelRect;
        if (GetParam() & WS_EX_LAYOUTRTL)
            wheel = placeIn(page, wheel);
        Picture picture = seen(page);
        page.DestroyWindow();
        return picture;
    }

    CWnd frame;
    StripedTabs tabs;
    CRect wheel; ///< of the last page, in what is seen of it
    Colour last; ///< of the last page
};

/// Whether a point lies under the markers of a colour, or a pixel beside them.
bool isUnderMarkers(CPoint point, const ovoui::colour::HueRing& ring, const Colour& colour)
{
    const int reach = ovoui::colour::markerRadius(ring) + 1;
    const auto isNear = [&](Vector<2> marker) {
        return std::abs(point.x - std::lround(marker.x())) <= reach &&
               std::abs(point.y - std::lround(marker.y())) <= reach;
    };
    return isNear(ring.marker(colour.h_hls())) ||
           isNear(ovoui::colour::triangleIn(ring).marker(colour.l_hls(), colour.s_hls()));
}

} // namespace

TEST_P(PickerOnStripes, TheMarkersGiveBackThePattern)
{
    if (!CThemeData::getThemeData().IsAppThemed())
        GTEST_SKIP() << "visual styles are off";
    const Picture behind = pageSeen(kEmptyPageTemplate, true);
    for (const bool told : {true, false}) { // by tabCtrl, or found among the parents
        const Picture picture = pageSeen(kPageTemplate, told);
        const Pixels pixels = wheelPixels(wheel, Angle::degrees(0));
        const auto ring = ovoui::colour::ringIn({wheel.left, wheel.top, wheel.right, wheel.bottom});
        int shown = 0;
        int inverted = 0;
        int wrong = 0;
        for (int y = 0; y < wheel.Height(); ++y)
            for (int x = 0; x < wheel.Width(); ++x) {
                if (pixels[static_cast<std::size_t>(y * wheel.Width() + x)] != 0)
                    continue;
                const CPoint point(wheel.left + x, wheel.top + y);
                ++shown;
                if (picture.at(point) == behind.at(point))
                    continue;
                const bool isInverted = picture.at(point) == (behind.at(point) ^ 0x00FFFFFF);
                ++(isInverted && isUnderMarkers(point, ring, last) ? inverted : wrong);
            }
        EXPECT_GT(shown, 1000);
        EXPECT_GT(inverted, 0) << "the cross reaches beyond the base";
        EXPECT_EQ(wrong, 0) << told;
    }
}

INSTANTIATE_TEST_SUITE_P(Layouts, PickerOnStripes, ::testing::Values(DWORD{0}, DWORD{WS_EX_LAYOUTRTL}),
                         [](const auto& info) { return info.param ? "RightToLeft" : "LeftToRight"; });
