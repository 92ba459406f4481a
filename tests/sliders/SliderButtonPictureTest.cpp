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

    /// A push button of the button's size in a state of the theme.
    Picture themedFace(int state)
    {
        CRect client;
        button->GetClientRect(&client);
        Picture face(client.Width(), client.Height(), ::GetSysColor(COLOR_BTNFACE));
        const HTHEME theme = ::OpenThemeData(parent, L"Button");
        ::DrawThemeBackground(theme, face.dc(), BP_PUSHBUTTON, state, &client, nullptr);
        ::CloseThemeData(theme);
        return face;
    }

    /// Pixels left of the arrow.
    int facesDiffer(int state, int otherState)
    {
        const Picture one = themedFace(state);
        const Picture other = themedFace(otherState);
        int different = 0;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < kLeftOfArrow; ++x)
                different += one.at(x, y) != other.at(x, y);
        return different;
    }

    void expectFrame(bool pressed)
    {
        const COLORREF highlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
        const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
        const COLORREF topLeft = pressed ? shadow : highlight;
        const COLORREF bottomRight = pressed ? highlight : shadow;
        const Picture picture = shown();
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        EXPECT_THAT(picture.at(0, bottom / 2), IsColour(topLeft));
        EXPECT_THAT(picture.at(right / 2, 0), IsColour(topLeft));
        EXPECT_THAT(picture.at(right, bottom / 2), IsColour(bottomRight));
        EXPECT_THAT(picture.at(right / 2, bottom), IsColour(bottomRight));
        EXPECT_THAT(picture.at(2, 2), IsColour(::GetSysColor(COLOR_BTNFACE)));
    }

    static constexpr int kLeftOfArrow = 10; // in a button of 24 by 22
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
    button->MoveWindow(102, 10, 24, 22); // with room left of the arrow
    const auto expectFace = [&](int state) {
        const Picture picture = shown();
        const Picture face = themedFace(state);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < kLeftOfArrow; ++x)
                EXPECT_THAT(picture.at(x, y), IsColour(face.at(x, y)))
                    << "state " << state << " at " << x << ", " << y;
    };
    expectFace(PBS_NORMAL);
    button->EnableWindow(FALSE);
    expectFace(PBS_DISABLED);
    button->EnableWindow();
    button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    expectFace(PBS_PRESSED);
    button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));

    for (const int state : {PBS_DISABLED, PBS_PRESSED})
        EXPECT_GT(facesDiffer(PBS_NORMAL, state), 0)
            << "or this test would take the normal face for state " << state;
}

TEST_F(SliderButtonPicture, TheClassicFaceIsAFrameThatIsReversedWhenPressed)
{
    if (themed())
        return SUCCEED() << "with visual styles the theme draws the face";
    show();
    expectFrame(false);
    user.click(Spot{*button}).waitFor("the popup", &isOpen);
    expectFrame(true);
}

TEST_F(SliderButtonPicture, AButtonAloneWithoutVisualStylesHasAFrame)
{
    show();
    const Picture before = shown();
    ::SetWindowTheme(*button, L" ", L" ");
    expectFrame(false);
    button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    expectFrame(true);
    button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    button->SendMessage(WM_KEYDOWN, VK_SPACE);
    other.SetFocus();
    ::SetWindowTheme(*button, nullptr, nullptr);
    EXPECT_EQ(shown().differences(before), 0) << "with them again";
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

TEST_F(SliderButtonPicture, AControlWithTheFocusThatBecomesAButtonIsMarked)
{
    show();
    button->SetFocus();
    const Picture with = shown();
    HWND control = button->UnsubclassWindow();
    button = std::make_unique<CSliderButton>(utils);
    button->SubclassWindow(control);
    button->Invalidate();
    EXPECT_EQ(shown().differences(with), 0);
}
