// What the picker does to its controls and when it draws, as a derived dialog relies on it.
#include "PickerScene.h"

#include <testkit/ImportPatch.h>

#include <ovoui/colour/core/WheelGeometry.h>

#include <commctrl.h>
#include <gdiplus.h>
#include <imm.h>

#include <cstring>

using namespace ovo::testkit;

namespace
{

/// Takes down the messages that a window gets while this object lives.
class Messages
{
public:
    explicit Messages(HWND wnd)
        : m_wnd(wnd)
    {
        ::SetWindowSubclass(wnd, &listen, 7, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Messages() { ::RemoveWindowSubclass(m_wnd, &listen, 7); }

    int count(UINT message) const
    {
        return static_cast<int>(std::count(m_seen.begin(), m_seen.end(), message));
    }
    /// Of those asked for, in order.
    std::vector<UINT> only(std::initializer_list<UINT> messages) const
    {
        std::vector<UINT> found;
        for (const UINT seen : m_seen)
            if (std::find(messages.begin(), messages.end(), seen) != messages.end())
                found.push_back(seen);
        return found;
    }

private:
    static LRESULT CALLBACK listen(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR self)
    {
        reinterpret_cast<Messages*>(self)->m_seen.push_back(message);
        return ::DefSubclassProc(wnd, message, wParam, lParam);
    }

    HWND m_wnd;
    std::vector<UINT> m_seen;
};

int g_drawn = 0;
int g_disposed = 0;

struct Lock
{
    Gdiplus::Rect rect;
    UINT flags;
    INT format;
    INT stride;
    bool hasBuffer;
};
std::vector<Lock> g_locks;
int g_unlocks = 0;

class PickerEngine : public PickerScene
{
protected:
    static ovoui::frame::Box rectOf(const CRect& rect)
    {
        return {rect.left, rect.top, rect.right, rect.bottom};
    }

    /// The pixel that a window shows now, without being asked to paint.
    static COLORREF pixel(CWnd& wnd, CPoint point)
    {
        CClientDC dc(&wnd);
        return dc.GetPixel(point);
    }
};

/// Reaches the operations that a host overrides.
struct Reach : ColPicker
{
    /// The place of a virtual operation in the table, which the compiler keeps in pointers to it.
    template <class Member>
    static std::ptrdiff_t slot(Member member)
    {
        std::ptrdiff_t offset = 0;
        std::memcpy(&offset, &member, sizeof offset);
        return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
    }
    static std::vector<std::ptrdiff_t> slots()
    {
        return {slot(&Reach::tabCtrl), slot(&Reach::UpdateExternalColours), slot(&Reach::customCols),
                slot(&Reach::LoadSettings), slot(&Reach::SaveSettings)};
    }
};

/// A host's dialog that has a text for each of its controls.
class TippedPicker : public Picker
{
public:
    using Picker::Picker;

protected:
    BOOL OnNeedText(UINT, NMHDR* header, LRESULT*)
    {
        auto* const tip = reinterpret_cast<TOOLTIPTEXT*>(header);
        const int id = ::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom));
        wcscpy(tip->szText, (L"tip of " + std::to_wstring(id)).c_str());
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TippedPicker, Picker)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &TippedPicker::OnNeedText)
END_MESSAGE_MAP()

/// What the tip on the screen says; nothing without one.
std::wstring shownTip()
{
    wchar_t text[100]{};
    if (const HWND tip = shownWindow(nullptr, TOOLTIPS_CLASSW))
        ::GetWindowTextW(tip, text, static_cast<int>(std::size(text)));
    return text;
}

} // namespace

TEST_F(PickerEngine, WhatHostsOverrideStandsInOrder)
{
    EXPECT_EQ(Reach::slots(), (std::vector<std::ptrdiff_t>{2, 3, 4, 5, 6}))
        << "behind two for the destructor";
}

// Making

TEST_F(PickerEngine, EveryEditTakesThreePlainDigits)
{
    for (const double alpha : {0.5, -1.0}) {
        open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, alpha));
        for (CEdit* const edit : {&picker->m_value1, &picker->m_value2, &picker->m_value3}) {
            EXPECT_EQ(edit->SendMessage(EM_GETLIMITTEXT), 3);
            EXPECT_EQ(::ImmGetContext(*edit), nullptr);
        }
        EXPECT_EQ(picker->m_valueAlpha.SendMessage(EM_GETLIMITTEXT) == 3, alpha >= 0) << alpha;
        picker->DestroyWindow();
    }
}

TEST_F(PickerEngine, TheDialogShowsTips)
{
    TippedPicker tipped(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
    tipped.createColPickerDlgBase();
    ready(tipped);
    const auto says = [](const wchar_t* text) { return [=] { return shownTip() == text; }; };
    user.moveTo(Spot{tipped.m_slider1}).moveBy(3, 1).waitFor("the slider's tip", says(L"tip of 3432"));
    user.moveTo(Spot{tipped.m_value2}).moveBy(3, 1).waitFor("the edit's tip", says(L"tip of 3438"));
    user.moveTo(Spot{tipped, tipped.m_wheelRect.TopLeft()}).waitFor("the end of the tip", says(L""));
    tipped.DestroyWindow();
}

TEST_F(PickerEngine, SettingsCountForEverythingThatIsMade)
{
    // So near to the other that a picker which compares would not take it.
    const Colour stored = Colour::rgba(1, 0.5, 1.0 / 1024, 0.25);
    Picker settled(TestApp::instance(), ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 0.25), nullptr, nullptr);
    settled.onLoad = [&] {
        EXPECT_TRUE(settled.m_patchRect.IsRectEmpty()) << "before the dialog is looked at";
        settled.m_mode = ColPickerModeHLS;
        settled.m_alphaEnabled = false;
        settled.SetColour(&settled, stored, false);
    };
    settled.createColPickerDlgBase();
    EXPECT_EQ(settled.m_space.GetCurSel(), 1);
    EXPECT_EQ(settled.text(kCaption2), L"&Lightness:");
    EXPECT_EQ(settled.m_slider1.GetRangeMax(), 359);
    EXPECT_FALSE(settled.m_valueAlpha.IsWindowVisible());
    EXPECT_EQ(settled.GetColour().b(), stored.b());
    settled.DestroyWindow();
}

TEST_F(PickerEngine, ThePlacesAreThoseOfTheItems)
{
    openSwatches();
    for (const auto& [id, place] :
         {std::pair{kPatch, host->m_patchRect}, std::pair{kWheel, host->m_wheelRect},
          std::pair{kSwatchArea, host->m_customRect}}) {
        CRect item;
        host->GetDlgItem(id)->GetWindowRect(&item);
        host->ScreenToClient(&item);
        EXPECT_EQ(place, item) << id;
        EXPECT_FALSE(host->GetDlgItem(id)->IsWindowVisible()) << id;
    }
}

TEST_F(PickerEngine, AWheelWithoutWidthOrHeightDrawsNothing)
{
    for (const CSize size : {CSize(0, 60), CSize(60, 0), CSize(0, 0)}) {
        Picker flat(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
        flat.onLoad = [&] {
            flat.GetDlgItem(kWheel)->SetWindowPos(nullptr, 20, 20, size.cx, size.cy, SWP_NOZORDER);
        };
        flat.createColPickerDlgBase();
        ready(flat);
        flat.SetColour(&flat, Colour::rgb(0, 0, 1), true);
        const Picture picture = Picture::ofClient(flat.m_hWnd);
        EXPECT_EQ(picture.count(::GetSysColor(COLOR_BTNFACE), 0, CRect(15, 15, 85, 85)), 70 * 70) << size.cx;
        EXPECT_FALSE(flat.DoLButtonDown(&flat, 0, {20, 20}));
        EXPECT_EQ(picture.at(flat.m_patchRect.CenterPoint()), RGB(0, 0, 255));
        flat.DestroyWindow();
    }
}

TEST_F(PickerEngine, TheWheelIsFreedWithTheWindow)
{
    open();
    const auto dispose = +[](Gdiplus::GpImage* image) {
        ++g_disposed;
        return Gdiplus::DllExports::GdipDisposeImage(image);
    };
    const ImportPatch patch(L"ovoui.dll", "GdipDisposeImage", reinterpret_cast<void*>(dispose));
    g_disposed = 0;
    picker->DestroyWindow();
    EXPECT_EQ(g_disposed, 1);
}

// Painting

TEST_F(PickerEngine, OnlyWhatIsStaleIsDrawn)
{
    openSwatches();
    int asked = 0;
    host->onCustom = [&] { ++asked; };
    const auto draw =
        +[](Gdiplus::GpGraphics* graphics, Gdiplus::GpImage* image, INT x, INT y, INT width, INT height) {
            ++g_drawn;
            return Gdiplus::DllExports::GdipDrawImageRectI(graphics, image, x, y, width, height);
        };
    const ImportPatch patch(L"ovoui.dll", "GdipDrawImageRectI", reinterpret_cast<void*>(draw));
    const struct
    {
        CRect part;
        bool wheel;
        bool swatches;
        const wchar_t* edit; ///< what is being typed there is overwritten when the patch is drawn
    } rows[] = {
        {host->m_wheelRect, true, false, L"7"},
        {host->m_patchRect, false, false, L"255"},
        {host->m_customRect, false, true, L"7"},
        {CRect(0, 0, 2, 2), false, false, L"7"},
    };
    for (const auto& row : rows) {
        host->UpdateWindow();
        host->m_value1.SetWindowText(L"7");
        asked = g_drawn = 0;
        host->InvalidateRect(&row.part, FALSE);
        host->UpdateWindow();
        EXPECT_EQ(g_drawn, row.wheel) << row.part.left;
        EXPECT_EQ(asked > 0, row.swatches) << row.part.left;
        EXPECT_EQ(host->text(kValue1), row.edit) << row.part.left;
    }
}

// A bitmap of GDI+ may keep pixels of its own.
TEST_F(PickerEngine, ANewTriangleIsHandedToTheBitmap)
{
    open();
    picker->UpdateWindow();
    const auto lock = +[](Gdiplus::GpBitmap* bitmap, const Gdiplus::Rect* rect, UINT flags, INT format,
                          Gdiplus::BitmapData* data) {
        g_locks.push_back({*rect, flags, format, data->Stride, data->Scan0 != nullptr});
        return Gdiplus::DllExports::GdipBitmapLockBits(bitmap, rect, flags, format, data);
    };
    const auto unlock = +[](Gdiplus::GpBitmap* bitmap, Gdiplus::BitmapData* data) {
        ++g_unlocks;
        return Gdiplus::DllExports::GdipBitmapUnlockBits(bitmap, data);
    };
    const ImportPatch locking(L"ovoui.dll", "GdipBitmapLockBits", reinterpret_cast<void*>(lock));
    const ImportPatch unlocking(L"ovoui.dll", "GdipBitmapUnlockBits", reinterpret_cast<void*>(unlock));
    g_locks.clear();
    g_unlocks = 0;
    picker->SetColour(picker.get(), Colour::hls(Angle::degrees(200), 0.5, 1), true);
    picker->UpdateWindow();
    const CRect wheel = picker->m_wheelRect;
    ASSERT_EQ(g_locks.size(), 1u);
    EXPECT_TRUE(g_locks[0].rect.Equals(Gdiplus::Rect(0, 0, wheel.Width(), wheel.Height())));
    EXPECT_EQ(g_locks[0].flags, UINT{Gdiplus::ImageLockModeWrite | Gdiplus::ImageLockModeUserInputBuf});
    EXPECT_EQ(g_locks[0].format, PixelFormat32bppARGB);
    EXPECT_EQ(g_locks[0].stride, wheel.Width() * 4);
    EXPECT_TRUE(g_locks[0].hasBuffer);
    EXPECT_EQ(g_unlocks, 1);
}

TEST_F(PickerEngine, ChangesAreShownWithoutErasing)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 0.5));
    picker->UpdateWindow();
    const Messages dialog(picker->m_hWnd);
    picker->SetColour(picker.get(), Colour::rgba(0, 0, 1, 0.5), true);
    EXPECT_TRUE(::GetUpdateRect(picker->m_hWnd, nullptr, FALSE));
    picker->UpdateWindow();
    picker->SetSliderMode(picker.get(), ColPickerModeHSV);
    EXPECT_TRUE(::GetUpdateRect(picker->m_hWnd, nullptr, FALSE));
    picker->UpdateWindow();
    EXPECT_EQ(dialog.count(WM_PAINT), 2);
    EXPECT_EQ(dialog.count(WM_ERASEBKGND), 0);
}

TEST_F(PickerEngine, ANewModelDrawsTheSlidersFromTheGround)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 0.5));
    for (CSliderCtrl* const slider :
         {&picker->m_slider1, &picker->m_slider2, &picker->m_slider3, &picker->m_sliderAlpha}) {
        slider->UpdateWindow();
        picker->SetSliderMode(picker.get(), ColPickerModeHLS);
        EXPECT_TRUE(::GetUpdateRect(*slider, nullptr, FALSE));
        const Messages messages(*slider);
        slider->UpdateWindow();
        EXPECT_EQ(messages.count(WM_ERASEBKGND), 1);
    }
}

TEST_F(PickerEngine, TheMarkersMoveAtOnce)
{
    open(ColPickerModeRGB, Colour::hls(Angle::degrees(90), 0.5, 1));
    picker->UpdateWindow();
    const auto ring = ovoui::colour::ringIn(rectOf(picker->m_wheelRect));
    const Vector<2> marker = ring.marker(Angle::degrees(270));
    const CPoint onCircle(static_cast<int>(std::lround(marker.x())),
                          static_cast<int>(std::lround(marker.y())) - ovoui::colour::markerRadius(ring));
    const COLORREF before = pixel(*picker, onCircle);
    picker->SetColour(picker.get(), Colour::hls(Angle::degrees(270), 0.5, 1), true);
    EXPECT_EQ(pixel(*picker, onCircle), before ^ 0x00FFFFFF) << "before anything is painted";
}

// The patch and the edits

TEST_F(PickerEngine, AlphaThatIsNotEditedLeavesThePatchSolid)
{
    openSwatches(kSwatchTemplate, Colour::rgba(1, 0.6, 0, 0.4));
    host->UpdateWindow();
    const CRect patch = host->m_patchRect;
    EXPECT_EQ(Picture::ofClient(host->m_hWnd).count(RGB(255, 153, 0), 0, patch),
              patch.Width() * patch.Height());
}

TEST_F(PickerEngine, TheSquaresBeginWithTheColourOverBlack)
{
    open(ColPickerModeRGB, Colour::rgba(1, 0.6, 0, 0.4));
    picker->UpdateWindow();
    const Picture picture = Picture::ofClient(picker->m_hWnd);
    const CRect patch = picker->m_patchRect;
    for (int y = patch.top; y < patch.bottom; ++y)
        for (int x = patch.right - patch.Width() / 2; x < patch.right; ++x)
            ASSERT_EQ(picture.at(x, y), (x / 8 + y / 8) % 2 == 0 ? RGB(102, 61, 0) : RGB(255, 214, 153))
                << x << ", " << y << ", from the corner of the dialog";
}

TEST_F(PickerEngine, ANewTextIsSelectedAndScrolledTo)
{
    open();
    const Messages edit(picker->m_value2);
    picker->SetColour(picker.get(), Colour::rgb(0, 0.2, 0), false);
    picker->UpdateWindow();
    EXPECT_EQ(edit.only({WM_SETTEXT, EM_SETSEL, EM_SCROLLCARET}),
              (std::vector<UINT>{WM_SETTEXT, EM_SETSEL, EM_SCROLLCARET}));
    EXPECT_EQ(picker->m_value2.SendMessage(EM_GETSEL), MAKELONG(0, 2));
}

TEST_F(PickerEngine, RedGreenAndBlueLeaveTheHueOfAGreyAlone)
{
    const Colour grey = Colour::hlsa(Angle::degrees(77), 0.2, 0, 1); // 51, 51, 51
    open(ColPickerModeRGB, grey);
    picker->SendMessage(WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(picker->m_slider1.m_hWnd));
    EXPECT_EQ(picker->GetColour().h_hls().degrees(), 77);
    picker->DoKillfocusColpickerValues(picker.get());
    EXPECT_EQ(picker->GetColour().h_hls().degrees(), 77);

    picker->SetSliderMode(picker.get(), ColPickerModeHLS);
    picker->paint();
    picker->m_value1.SetWindowText(L"78");
    picker->DoKillfocusColpickerValues(picker.get());
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 78, 1e-9) << "where the hue is edited it counts";
}

// The mouse

TEST_F(PickerEngine, ThreePixelsBesideTheRingStillCount)
{
    open();
    const auto ring = ovoui::colour::ringIn(rectOf(picker->m_wheelRect));
    // Along the level line through the centre, on which the right edge of the hexagon stands upright.
    const int outside = static_cast<int>(std::floor(ring.vertex(1).x() + ring.outer() - ring.inner()));
    const int y = picker->centre().y;
    EXPECT_FALSE(picker->DoLButtonDown(picker.get(), 0, {outside + 4, y}));
    EXPECT_TRUE(picker->DoLButtonDown(picker.get(), 0, {outside + 3, y}));
    EXPECT_EQ(picker->m_drag, Picker::Drag::Ring);
    picker->DoLButtonUp(picker.get(), 0, {outside + 3, y});
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 270, 0.7);
}

TEST_F(PickerEngine, WhereBothAreNearTheTriangleIsMeant)
{
    open();
    const auto ring = ovoui::colour::ringIn(rectOf(picker->m_wheelRect));
    const auto triangle = ovoui::colour::triangleIn(ring);
    const CRect wheel = picker->m_wheelRect;
    int found = 0;
    for (int y = wheel.top; y < wheel.bottom; ++y)
        for (int x = wheel.left; x < wheel.right; ++x) {
            if (!triangle.test({x, y}, 3).inTriangle || !ring.test({x, y}, 3).onRing)
                continue;
            ++found;
            EXPECT_TRUE(picker->DoLButtonDown(picker.get(), 0, {x, y}));
            EXPECT_EQ(picker->m_drag, Picker::Drag::Triangle) << x << ", " << y;
            picker->DoLButtonUp(picker.get(), 0, {x, y});
        }
    EXPECT_GT(found, 0);
}

TEST_F(PickerEngine, WithoutItsCursorThePatchIsDraggedAllTheSame)
{
    openSwatches();
    host->UpdateWindow();
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    const auto none = +[](HINSTANCE, LPCWSTR) -> HCURSOR { return nullptr; };
    const ImportPatch patch(L"ovoui.dll", "LoadCursorW", reinterpret_cast<void*>(none));
    ::SetCursor(arrow);
    EXPECT_TRUE(host->DoLButtonDown(host.get(), MK_LBUTTON, host->m_patchRect.CenterPoint()));
    EXPECT_EQ(::GetCursor(), arrow);
    EXPECT_EQ(::GetCapture(), host->m_hWnd);
    EXPECT_TRUE(host->DoMouseMove(host.get(), MK_LBUTTON, {1, 1}));
    EXPECT_EQ(::GetCursor(), arrow);
    EXPECT_TRUE(host->DoLButtonUp(host.get(), 0, host->m_swatches[2].CenterPoint()));
    EXPECT_EQ(host->custom[2], RGB(255, 128, 0));
    EXPECT_EQ(::GetCursor(), arrow);
}

TEST_F(PickerEngine, ADropDrawsThatSwatchAnew)
{
    openSwatches();
    host->UpdateWindow();
    host->DoLButtonDown(host.get(), MK_LBUTTON, host->m_patchRect.CenterPoint());
    host->DoLButtonUp(host.get(), 0, host->m_swatches[10].CenterPoint());
    CRect stale;
    EXPECT_TRUE(::GetUpdateRect(host->m_hWnd, &stale, FALSE));
    EXPECT_EQ(stale, host->m_swatches[10]);
    const Messages messages(host->m_hWnd);
    host->UpdateWindow();
    EXPECT_EQ(messages.count(WM_ERASEBKGND), 0);
}

TEST_F(PickerEngine, SwatchesAndPureHuesHaveNoAlpha)
{
    openSwatches(kSwatchTemplate, Colour::rgba(1, 0.5, 0, 0.5));
    host->UpdateWindow();
    host->DoLButtonDown(host.get(), MK_LBUTTON, host->m_swatches[6].CenterPoint());
    EXPECT_LT(host->GetColour().a(), 0);
    open(ColPickerModeRGB, Colour::rgba(1, 0.5, 0, 0.5));
    picker->DoLButtonDblClk(picker.get(), 0, picker->centre() + CSize(0, picker->outer() * 9 / 10));
    EXPECT_LT(picker->GetColour().a(), 0);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 180, 1e-9);
}

TEST_F(PickerEngine, TheHueOfAGreyFollowsADrag)
{
    open(ColPickerModeHLS, Colour::hlsa(Angle::degrees(45), 0.5, 0, 1));
    const CPoint top = picker->centre() - CSize(0, picker->outer() * 9 / 10);
    const CPoint bottom = picker->centre() + CSize(0, picker->outer() * 9 / 10);
    const CPoint right = picker->centre() + CSize(picker->outer(), 0);
    picker->DoLButtonDown(picker.get(), MK_LBUTTON, top);
    EXPECT_NEAR(std::remainder(picker->GetColour().h_hls().degrees(), 360), 0, 1e-9);
    picker->DoMouseMove(picker.get(), MK_LBUTTON, bottom);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 180, 1e-9);
    picker->DoLButtonUp(picker.get(), 0, right);
    EXPECT_NEAR(picker->GetColour().h_hls().degrees(), 270, 0.7);
    EXPECT_EQ(picker->told, (std::vector<bool>{false, false, true}));
}
