// Where a dialog appears whose template gives no place.
#include "TestDialog.h"
#include "resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// A template of either form, with a place and a style.
class PlacedTemplate
{
public:
    PlacedTemplate(bool extended, DWORD style, short x, short y)
    {
        if (extended) {
            number(MAKELONG(1, 0xFFFF));
            number(0);
        }
        if (extended)
            number(0);
        number(style);
        if (!extended)
            number(0);
        const WORD rest[] = {0, static_cast<WORD>(x), static_cast<WORD>(y), 80, 40, 0, 0, 0};
        m_words.insert(m_words.end(), std::begin(rest), std::end(rest));
    }
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    void number(DWORD value)
    {
        m_words.push_back(LOWORD(value));
        m_words.push_back(HIWORD(value));
    }

    std::vector<WORD> m_words;
};

class PlacedDialog : public CDialog
{
public:
    std::function<void(CWnd&)> onInit;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (onInit)
            onInit(*this);
        return TRUE;
    }
};

constexpr DWORD kPopup = WS_POPUP | WS_CAPTION | WS_SYSMENU;

CRect rectOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

CRect workArea()
{
    CRect area;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

/// Where a window of the size of `rect` lies in the middle of `around`.
CPoint middled(const CRect& rect, const CRect& around)
{
    return {(around.left + around.right - rect.Width()) / 2,
            (around.top + around.bottom - rect.Height()) / 2};
}

class AutoCenter : public ::testing::Test
{
protected:
    AutoCenter() { m_owner.MoveWindow(300, 220, 400, 300); }

    /// Where a modeless dialog comes to lie.
    CRect placeOf(const PlacedTemplate& dialogTemplate, std::function<void(CWnd&)> onInit = {})
    {
        PlacedDialog dialog;
        dialog.onInit = onInit;
        EXPECT_TRUE(dialog.CreateIndirect(dialogTemplate.get(), &m_owner));
        const CRect place = rectOf(dialog.m_hWnd);
        dialog.DestroyWindow();
        return place;
    }

    bool isMiddled(const CRect& place) const
    {
        return place.TopLeft() == middled(place, rectOf(m_owner.m_hWnd));
    }

    OwnerWindow m_owner;
};

} // namespace

TEST_F(AutoCenter, ADialogWithoutAPlaceLiesInTheMiddleOfItsOwner)
{
    for (const bool extended : {false, true}) {
        EXPECT_TRUE(isMiddled(placeOf(PlacedTemplate(extended, kPopup, 0, 0)))) << extended;
        EXPECT_TRUE(isMiddled(placeOf(PlacedTemplate(extended, kPopup | WS_VISIBLE, 0, 0)))) << extended;
    }
}

TEST_F(AutoCenter, AModalOneToo)
{
    const PlacedTemplate dialogTemplate(true, kPopup, 0, 0);
    PlacedDialog dialog;
    dialog.InitModalIndirect(dialogTemplate.get(), &m_owner);
    CRect place;
    auto looking = whenShown().then([&] { place = rectOf(shownDialog()); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(isMiddled(place));
}

TEST_F(AutoCenter, ATemplateThatGivesAPlaceIsFollowed)
{
    for (const bool extended : {false, true}) {
        EXPECT_FALSE(isMiddled(placeOf(PlacedTemplate(extended, kPopup, 1, 0)))) << extended;
        EXPECT_FALSE(isMiddled(placeOf(PlacedTemplate(extended, kPopup, 0, 1)))) << extended;
        EXPECT_EQ(placeOf(PlacedTemplate(extended, kPopup | DS_ABSALIGN, 0, 0)).TopLeft(), CPoint(0, 0))
            << extended;
    }
}

TEST_F(AutoCenter, OneThatIsMovedOrShownWhileItIsMadeStays)
{
    const PlacedTemplate dialogTemplate(true, kPopup, 0, 0);
    const CRect moved = placeOf(dialogTemplate, [](CWnd& dialog) {
        dialog.SetWindowPos(nullptr, 31, 41, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    });
    EXPECT_EQ(moved.TopLeft(), CPoint(31, 41));
    EXPECT_FALSE(isMiddled(placeOf(dialogTemplate, [](CWnd& dialog) { dialog.ShowWindow(SW_SHOW); })));
}

TEST_F(AutoCenter, OneThatIsSizedWhileItIsMadeIsCentredWithItsNewSize)
{
    const CRect place = placeOf(PlacedTemplate(true, kPopup, 0, 0), [](CWnd& dialog) {
        dialog.SetWindowPos(nullptr, 0, 0, 150, 120, SWP_NOMOVE | SWP_NOZORDER);
    });
    EXPECT_EQ(place.Size(), CSize(150, 120));
    EXPECT_TRUE(isMiddled(place));
}

TEST_F(AutoCenter, AChildStaysInItsCorner)
{
    EXPECT_EQ(placeOf(PlacedTemplate(true, WS_CHILD | DS_CONTROL, 0, 0)).TopLeft(),
              rectOf(m_owner.m_hWnd).TopLeft());
}

TEST_F(AutoCenter, AnOwnerAtTheEdgeDoesNotPushTheDialogOffTheScreen)
{
    const CRect area = workArea();
    m_owner.MoveWindow(area.right - 20, area.bottom - 20, 60, 60);
    const CRect place = placeOf(PlacedTemplate(true, kPopup, 0, 0));
    EXPECT_EQ(place.BottomRight(), area.BottomRight());
}

TEST_F(AutoCenter, WithAHiddenOwnerItLiesInTheMiddleOfTheScreen)
{
    m_owner.ShowWindow(SW_HIDE);
    const CRect place = placeOf(PlacedTemplate(true, kPopup, 0, 0));
    EXPECT_EQ(place.TopLeft(), middled(place, workArea()));
}

TEST_F(AutoCenter, AHostMayDecideOtherwise)
{
    class Stubborn : public PlacedDialog
    {
    public:
        BOOL CheckAutoCenter() override { return FALSE; }
    } dialog;
    const PlacedTemplate dialogTemplate(true, kPopup, 0, 0);
    ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.get(), &m_owner));
    EXPECT_FALSE(isMiddled(rectOf(dialog.m_hWnd)));
    dialog.DestroyWindow();
}

TEST_F(AutoCenter, CenterWindowTakesTheAlternateOwner)
{
    OwnerWindow other;
    other.MoveWindow(40, 60, 500, 260);
    const CRect place =
        placeOf(PlacedTemplate(true, kPopup, 0, 0), [&](CWnd& dialog) { dialog.CenterWindow(&other); });
    EXPECT_EQ(place.TopLeft(), middled(place, rectOf(other.m_hWnd)));
    const CRect onScreen = placeOf(PlacedTemplate(true, kPopup, 0, 0),
                                   [](CWnd& dialog) { dialog.CenterWindow(CWnd::GetDesktopWindow()); });
    EXPECT_EQ(onScreen.TopLeft(), middled(onScreen, rectOf(::GetDesktopWindow())));
}
