// What the slider button looks like, with visual styles and without.
#include "SliderButtonScene.h"

#include <ovoui/frame/ThemeData.h>

#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

class SliderButtonPicture : public SliderButtonScene
{
protected:
    Picture shown() { return Picture::ofClient(button->m_hWnd); }

    static bool themed() { return CThemeData::getThemeData().IsAppThemed(); }
};

COLORREF arrowColour(bool enabled)
{
    return ::GetSysColor(enabled ? COLOR_3DDKSHADOW : COLOR_GRAYTEXT);
}

} // namespace

TEST_F(SliderButtonPicture, TheArrowPointsRightAndFillsWhatTheFaceLeaves)
{
    show();
    std::vector<CSize> sizes;
    for (const int width : {8, 9, 12, 16, 24, 40})
        for (const int height : {8, 9, 13, 20, 22, 30})
            sizes.emplace_back(width, height);
    for (const CSize& size : sizes)
        for (const bool enabled : {true, false}) {
            button->MoveWindow(102, 10, size.cx, size.cy);
            button->EnableWindow(enabled);
            const Picture picture = shown();
            const int middle = size.cy / 2;
            const int length = std::min(static_cast<int>(size.cx) - 5, middle - 2);
            const int right = size.cx - 3;
            EXPECT_THAT(picture.at(right - 2, middle), IsColour(arrowColour(enabled)))
                << size.cx << " by " << size.cy;
            EXPECT_THAT(picture.at(right - length + 1, middle), IsColour(arrowColour(enabled)));
            EXPECT_THAT(picture.at(right - length, middle - length + 2), IsColour(arrowColour(enabled)));
            EXPECT_NE(picture.at(right - 1, middle - 3), arrowColour(enabled)) << "beside the tip";
            EXPECT_NE(picture.at(right + 1, middle), arrowColour(enabled)) << "beyond it";
        }
}

TEST_F(SliderButtonPicture, ThereIsNoArrowWithoutRoom)
{
    for (const CSize size : {CSize(5, 20), CSize(20, 4), CSize(1, 1)}) {
        button->MoveWindow(102, 10, size.cx, size.cy);
        show();
        const Picture picture = shown();
        EXPECT_EQ(picture.count(arrowColour(true), 0, CRect(1, 1, size.cx - 1, size.cy - 1)), 0);
    }
}

TEST_F(SliderButtonPicture, PressedAndDisabledLookDifferent)
{
    show();
    const Picture idle = shown();
    button->EnableWindow(FALSE);
    EXPECT_GT(shown().differences(idle), 0) << "disabled";
    button->EnableWindow();
    EXPECT_EQ(shown().differences(idle), 0);
    user.moveTo(Spot{other}).press(Spot{*button}).waitFor("the popup", &isOpen).then([&] {
        EXPECT_GT(shown().differences(idle), 0) << "pressed";
    });
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    user.moveTo(Spot{other});
    EXPECT_EQ(shown().differences(idle), 0) << "released";
}

TEST_F(SliderButtonPicture, TheThemedFaceIsThatOfAPushButton)
{
    if (!themed())
        return SUCCEED() << "without visual styles it is a frame";
    show();
    HTHEME theme = ::OpenThemeData(button->m_hWnd, L"Button");
    const auto expectFace = [&](int state) {
        const Picture picture = shown();
        Picture face(picture.width(), picture.height(), ::GetSysColor(COLOR_BTNFACE));
        CRect all(0, 0, picture.width(), picture.height());
        ::DrawThemeBackground(theme, face.dc(), BP_PUSHBUTTON, state, &all, nullptr);
        for (int y = 0; y < picture.height(); ++y)
            for (const int x : {0, 1, 2, 3}) // left of the arrow
                EXPECT_THAT(picture.at(x, y), IsColour(face.at(x, y), 1))
                    << "state " << state << " at " << x << ", " << y;
    };
    expectFace(PBS_NORMAL);
    button->EnableWindow(FALSE);
    expectFace(PBS_DISABLED);
    button->EnableWindow();
    button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    expectFace(PBS_PRESSED);
    button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    ::CloseThemeData(theme);
}

TEST_F(SliderButtonPicture, TheClassicFaceIsAFrameThatIsReversedWhenPressed)
{
    if (themed())
        return SUCCEED() << "with visual styles the theme draws the face";
    show();
    const COLORREF highlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const auto expectFrame = [&](COLORREF topLeft, COLORREF bottomRight) {
        const Picture picture = shown();
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        EXPECT_THAT(picture.at(0, bottom / 2), IsColour(topLeft));
        EXPECT_THAT(picture.at(right / 2, 0), IsColour(topLeft));
        EXPECT_THAT(picture.at(right, bottom / 2), IsColour(bottomRight));
        EXPECT_THAT(picture.at(right / 2, bottom), IsColour(bottomRight));
        EXPECT_THAT(picture.at(2, 2), IsColour(::GetSysColor(COLOR_BTNFACE)));
    };
    expectFrame(highlight, shadow);
    user.click(Spot{*button}).waitFor("the popup", &isOpen);
    expectFrame(shadow, highlight);
}

TEST_F(SliderButtonPicture, TheFocusIsMarkedOnePixelInside)
{
    show();
    const Picture without = shown();
    button->SetFocus();
    const Picture with = shown();
    const int right = with.width() - 1;
    const int bottom = with.height() - 1;
    int marked = 0;
    for (int x = 1; x < right; ++x)
        marked += with.at(x, 1) != without.at(x, 1) ? 1 : 0;
    EXPECT_GE(marked, right / 2 - 1) << "every other pixel";
    for (int x = 0; x <= right; ++x) {
        EXPECT_EQ(with.at(x, 0), without.at(x, 0)) << "nothing outside";
        EXPECT_EQ(with.at(x, bottom), without.at(x, bottom));
    }
    EXPECT_EQ(with.at(2, 3), without.at(2, 3)) << "nothing inside";
    other.SetFocus();
    EXPECT_EQ(shown().differences(without), 0);
}
