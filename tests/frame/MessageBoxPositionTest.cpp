// The position that the message box remembers, and its help key.
#include "MessageBoxScene.h"
#include <testkit/ImportPatch.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

CPoint defaultButtonPlace(HWND box, int id)
{
    return screenRect(::GetDlgItem(box, id)).TopLeft();
}

class MessageBoxPosition : public ::testing::Test
{
protected:
    static CString saved(const wchar_t* key)
    {
        return AfxGetApp()->GetProfileString(L"settings", key, L"(none)");
    }
    static void save(const wchar_t* key, const wchar_t* text)
    {
        AfxGetApp()->WriteProfileString(L"settings", key, text);
    }

    /// Drags the box by its title bar, closes it, and gives the place where its OK button was then.
    static CPoint moveAndClose(const BoxArguments& arguments, int right, int down)
    {
        CPoint place;
        auto moving = whenOpen()
                          .press([] {
                              const CRect box = screenRect(openBox());
                              return CPoint(box.CenterPoint().x, box.top + 12);
                          })
                          .moveBy(right, down)
                          .release()
                          .then([&place] { place = defaultButtonPlace(openBox(), IDOK); })
                          .key(VK_RETURN)
                          .start();
        show(arguments);
        moving.finish();
        return place;
    }

    static CPoint okPlace(const BoxArguments& arguments)
    {
        CPoint place;
        inspect(arguments, [&place](HWND box) { place = defaultButtonPlace(box, IDOK); });
        return place;
    }

private:
    TemporaryProfile m_profile;
};

std::wstring asText(CPoint point)
{
    return std::to_wstring(point.x) + L"," + std::to_wstring(point.y);
}

HWND WINAPI makeAllButButtons(DWORD extendedStyle, LPCWSTR windowClass, LPCWSTR name, DWORD style, int x,
                              int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                              void* data)
{
    if (!IS_INTRESOURCE(windowClass) && ::lstrcmpiW(windowClass, L"BUTTON") == 0)
        return nullptr;
    return ::CreateWindowExW(extendedStyle, windowClass, name, style, x, y, width, height, parent, menu,
                             instance, data);
}

} // namespace

TEST_F(MessageBoxPosition, ABoxThatWasNotMovedIsNotRemembered)
{
    inspect({.settingsKey = L"still"}, [](HWND) {});
    EXPECT_STREQ(saved(L"still"), L"(none)");
}

TEST_F(MessageBoxPosition, AMovedBoxRemembersWhereItsDefaultButtonWas)
{
    const CPoint before = okPlace({.settingsKey = L"moved"});
    const CPoint after = moveAndClose({.settingsKey = L"moved"}, 60, 40);
    EXPECT_EQ(after, before + CSize(60, 40));
    EXPECT_EQ(saved(L"moved").GetString(), asText(after));
}

TEST_F(MessageBoxPosition, TheNextBoxOpensWithItsDefaultButtonThere)
{
    const CPoint place = moveAndClose({.settingsKey = L"again"}, 50, 30);
    EXPECT_EQ(okPlace({.settingsKey = L"again"}), place);
    EXPECT_EQ(okPlace({.text = L"A text of quite another\nsize\nthan the box before had.",
                       .settingsKey = L"again"}),
              place);
    EXPECT_NE(okPlace({.settingsKey = L"another key"}), place);
}

TEST_F(MessageBoxPosition, TheNextBoxIsNotRememberedAnewUnlessItIsMoved)
{
    moveAndClose({.settingsKey = L"once"}, 50, 30);
    save(L"once", L"300,300");
    okPlace({.settingsKey = L"once"});
    EXPECT_STREQ(saved(L"once"), L"300,300");
}

TEST_F(MessageBoxPosition, TheEmptyKeyRemembersToo)
{
    const CPoint place = moveAndClose({.settingsKey = L""}, 45, 25);
    EXPECT_EQ(saved(L"").GetString(), asText(place));
    EXPECT_EQ(okPlace({.settingsKey = L""}), place);
    EXPECT_EQ(okPlace({.settingsKey = nullptr}), place) << "no key is the empty key";
}

TEST_F(MessageBoxPosition, APlaceOffTheScreenIsPulledIntoView)
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    for (const wchar_t* place : {L"9000,8000", L"2147483647,2147483647"}) {
        save(L"off", place);
        inspect({.settingsKey = L"off"}, [&](HWND box) {
            EXPECT_EQ(screenRect(box).right, work.right) << place;
            EXPECT_EQ(screenRect(box).bottom, work.bottom) << place;
        });
    }
}

TEST_F(MessageBoxPosition, APlaceThatIsThatOfTheTemplateIsNotTakenForNone)
{
    CSize fromCorner;
    inspect({.settingsKey = L"first"}, [&fromCorner](HWND box) {
        fromCorner = defaultButtonPlace(box, IDOK) - screenRect(box).TopLeft();
    });
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    save(L"corner", asText(work.TopLeft() + fromCorner).c_str());
    inspect({.settingsKey = L"corner"},
            [&work](HWND box) { EXPECT_EQ(screenRect(box).TopLeft(), work.TopLeft()); });
}

TEST_F(MessageBoxPosition, WhatCannotBeReadOrHoldsMinusOneIsNotRemembered)
{
    const CPoint centred = okPlace({.settingsKey = L"fresh"});
    for (const wchar_t* text : {L"oak", L"17", L"17;30", L"-1,30", L"30,-1", L""}) {
        save(L"odd", text);
        EXPECT_EQ(okPlace({.settingsKey = L"odd"}), centred) << text;
    }
}

TEST_F(MessageBoxPosition, NegativePlacesAreReadAndWritten)
{
    save(L"left", L"-40,200");
    inspect({.settingsKey = L"left"}, [](HWND box) {
        EXPECT_EQ(screenRect(box).left, 0) << "pulled back from the left";
        EXPECT_EQ(defaultButtonPlace(box, IDOK).y, 200);
    });
}

TEST_F(MessageBoxPosition, ABoxWhoseButtonsCannotBeMadeIsUsableAndRemembersItsCorner)
{
    const ImportPatch patch{L"ovoui.dll", "CreateWindowExW", reinterpret_cast<void*>(&makeAllButButtons)};
    CPoint corner;
    const int answer = inspect({.settingsKey = L"bare"}, [&corner](HWND box) {
        EXPECT_TRUE(buttonsFromTheLeft(box).empty());
        EXPECT_EQ(::GetFocus(), textControl(box)) << "the keys go somewhere";
        ::SetWindowPos(box, nullptr, 150, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        corner = screenRect(box).TopLeft();
    });
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(saved(L"bare").GetString(), asText(corner));
    inspect({.settingsKey = L"bare"}, [&corner](HWND box) { EXPECT_EQ(screenRect(box).TopLeft(), corner); });
}

namespace
{

/// A platform that gives a window whose resolution has changed the place suggested in the message.
LRESULT WINAPI movingProcedure(WNDPROC procedure, HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DPICHANGED) {
        const auto* place = reinterpret_cast<const RECT*>(lParam);
        ::SetWindowPos(wnd, nullptr, place->left, place->top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    return ::CallWindowProcW(procedure, wnd, message, wParam, lParam);
}

void changeResolution(HWND box)
{
    const RECT place{40, 60, 440, 260};
    ::SendMessageW(box, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
    EXPECT_EQ(screenRect(box).TopLeft(), CPoint(40, 60)) << "the box was moved";
}

} // namespace

TEST_F(MessageBoxPosition, AMoveByAChangeOfResolutionIsNotTheUsers)
{
    const ImportPatch patch{L"ovomfc.dll", "CallWindowProcW", reinterpret_cast<void*>(&movingProcedure)};
    inspect({.settingsKey = L"resolution"}, &changeResolution);
    EXPECT_STREQ(saved(L"resolution"), L"(none)");
}

TEST_F(MessageBoxPosition, AMoveByTheUserCountsAfterAChangeOfResolutionToo)
{
    const ImportPatch patch{L"ovomfc.dll", "CallWindowProcW", reinterpret_cast<void*>(&movingProcedure)};
    inspect({.settingsKey = L"both"}, [](HWND box) {
        ::SetWindowPos(box, nullptr, 200, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        changeResolution(box);
    });
    EXPECT_STRNE(saved(L"both"), L"(none)");
}

TEST(MessageBoxHelp, F1AsksForTheHelpPage)
{
    auto asking = whenOpen()
                      .key(VK_F1)
                      .waitFor("the help", [] { return !TestApp::instance().helps().empty(); })
                      .then([] { EXPECT_NE(openBox(), nullptr); })
                      .key(VK_ESCAPE)
                      .start();
    EXPECT_EQ(show({.helpId = 4711}), IDCANCEL);
    asking.finish();
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, 4711u);
    EXPECT_EQ(TestApp::instance().helps()[0].command, 15u);
}

TEST(MessageBoxHelp, WithoutAHelpPageF1DoesNothing)
{
    auto asking = whenOpen().key(VK_F1).key(VK_ESCAPE).start();
    EXPECT_EQ(show({.helpId = 0}), IDCANCEL);
    asking.finish();
    EXPECT_TRUE(TestApp::instance().helps().empty());
}
