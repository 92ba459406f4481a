// The modal dialog base: what happens to the errors of its handlers.
#include <support/Perishing.h>
#include <testkit/Desktop.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>
#include "ModalDialogTest.h"

#include <ovocor/ovocor.h>
#include <ovoui/frame/ModalDialog.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr UINT kAct = WM_APP + 7;

struct Foreign
{
};

class ErrorDialog : public COVOModalDialog
{
public:
    ErrorDialog()
        : COVOModalDialog(IDD_ERROR_DIALOG, nullptr)
    {
    }

    BOOL dispatch(LRESULT& result) { return OnWndMsg(kAct, 0, 0, &result); }

    std::function<void()> onInit = [] {};
    std::function<void()> onAct = [] {};
    LRESULT actResult = -7;

protected:
    BOOL OnInitDialog() override
    {
        COVOModalDialog::OnInitDialog();
        onInit();
        return TRUE;
    }
    afx_msg LRESULT OnAct(WPARAM, LPARAM)
    {
        onAct();
        return 42;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ErrorDialog, COVOModalDialog)
    ON_MESSAGE(kAct, &ErrorDialog::OnAct)
END_MESSAGE_MAP()

class UnpaintedDialog : public COVOModalDialog
{
public:
    UnpaintedDialog()
        : COVOModalDialog(IDD_ERROR_DIALOG, nullptr)
    {
    }

protected:
    afx_msg void OnPaint() { throw OvoError(L"no colours"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UnpaintedDialog, COVOModalDialog)
    ON_WM_PAINT()
END_MESSAGE_MAP()

/// Opens the dialog, lets its handler act, and closes it with Escape.
INT_PTR run(ErrorDialog& dialog)
{
    auto acting = Robot()
                      .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                      .then([&dialog] { dialog.actResult = ::SendMessageW(shownDialog(), kAct, 0, 0); })
                      .then([] { EXPECT_NE(shownDialog(), nullptr) << "the dialog stays open"; })
                      .key(VK_ESCAPE)
                      .start();
    return dialog.DoModal();
}

const std::vector<AskedBox>& boxes()
{
    return TestApp::instance().boxes();
}

} // namespace

TEST(ModalDialog, WithoutErrorsItIsAnOrdinaryDialog)
{
    ErrorDialog dialog;
    EXPECT_EQ(run(dialog), IDCANCEL);
    EXPECT_EQ(dialog.actResult, 42);
    EXPECT_TRUE(boxes().empty());
}

TEST(ModalDialog, ShowsALibraryErrorWithItsWideText)
{
    ErrorDialog dialog;
    dialog.onAct = [] { throw OvoError(L"the oak \u2260 the elm"); };
    EXPECT_EQ(run(dialog), IDCANCEL);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, L"the oak \u2260 the elm");
    EXPECT_EQ(boxes()[0].type, 0x2030u);
    EXPECT_EQ(boxes()[0].helpId, static_cast<UINT>(IDD_ERROR_DIALOG));
}

TEST(ModalDialog, ShowsAStandardException)
{
    ErrorDialog dialog;
    dialog.onAct = [] { throw std::runtime_error("no more elms"); };
    EXPECT_EQ(run(dialog), IDCANCEL);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, L"no more elms");
    EXPECT_EQ(boxes()[0].type, 0x2030u);
    EXPECT_EQ(boxes()[0].helpId, static_cast<UINT>(IDD_ERROR_DIALOG));
}

TEST(ModalDialog, AnErrorCountsAsHandledAndLeavesTheAnswerAlone)
{
    ErrorDialog dialog;
    LRESULT answer = -7;
    EXPECT_TRUE(dialog.dispatch(answer));
    EXPECT_EQ(answer, 42);
    for (const auto& act : {std::function<void()>([] { throw OvoError(L"oak"); }),
                            std::function<void()>([] { throw std::runtime_error("elm"); })}) {
        dialog.onAct = act;
        answer = -7;
        EXPECT_TRUE(dialog.dispatch(answer));
        EXPECT_EQ(answer, -7);
    }
    EXPECT_EQ(boxes().size(), 2u);
}

namespace
{

/// Tells how many of its kind there are.
class CountedError : public OvoError
{
public:
    CountedError()
        : OvoError(L"oak")
    {
        ++s_count;
    }
    CountedError(const CountedError& other)
        : OvoError(other)
    {
        ++s_count;
    }
    ~CountedError() override { --s_count; }

    static int count() { return s_count; }

private:
    inline static int s_count = 0;
};

} // namespace

TEST(ModalDialog, TheExceptionIsGoneWhenItsBoxIsShown)
{
    TestApp::instance().onBox = [] {
        EXPECT_EQ(std::current_exception(), nullptr);
        EXPECT_EQ(CountedError::count(), 0);
    };
    ErrorDialog dialog;
    dialog.onAct = [] { throw CountedError(); };
    run(dialog);
    EXPECT_EQ(boxes().size(), 1u);
    dialog.onAct = [] { throw std::runtime_error("elm"); };
    run(dialog);
    EXPECT_EQ(boxes().size(), 2u);
}

TEST(ModalDialog, AnErrorWhileABoxIsShownIsShownToo)
{
    ErrorDialog dialog;
    TestApp::instance().onBox = [] {
        if (boxes().size() == 1)
            ::SendMessageW(shownDialog(), kAct, 0, 0);
    };
    dialog.onAct = [] { throw OvoError(boxes().empty() ? L"the first" : L"the second"); };
    EXPECT_EQ(run(dialog), IDCANCEL);
    ASSERT_EQ(boxes().size(), 2u);
    EXPECT_EQ(boxes()[1].text, L"the second");
}

TEST(ModalDialog, UsesTheDialogsOwnHelpId)
{
    ErrorDialog dialog;
    dialog.SetHelpID(77);
    dialog.onAct = [] { throw OvoError(L"oak"); };
    run(dialog);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].helpId, 77u);
}

TEST(ModalDialog, ShowsAnErrorOfItsInitialisationAndStaysOpen)
{
    ErrorDialog dialog;
    dialog.onInit = [] { throw WinError(L"Planting", ERROR_ACCESS_DENIED); };
    EXPECT_EQ(run(dialog), IDCANCEL);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_NE(boxes()[0].text.find(L"Planting"), std::wstring::npos);
}

TEST(ModalDialog, AnErrorOfPaintingIsNotRaisedAgainBehindItsBox)
{
    bool waits = true;
    UnpaintedDialog dialog;
    TestApp::instance().onBox = [&] { waits = ::GetUpdateRect(dialog, nullptr, FALSE) != FALSE; };
    ASSERT_TRUE(dialog.Create(IDD_ERROR_DIALOG));
    dialog.ShowWindow(SW_SHOWNA);
    dialog.UpdateWindow();
    ASSERT_FALSE(boxes().empty());
    EXPECT_FALSE(waits) << "a box has a loop of its own, which paints what is to be painted";
    dialog.DestroyWindow();
}

/// As a modeless dialog goes, which deletes itself with its window.
TEST(ModalDialog, ThatItsHandlerHasDeletedShowsTheErrorUnderItsHelpId)
{
    class Leaving : public COVOModalDialog
    {
    public:
        Leaving()
            : COVOModalDialog(IDD_ERROR_DIALOG, nullptr)
        {
        }

    protected:
        BOOL OnCommand(WPARAM, LPARAM) override
        {
            delete this;
            throw OvoError(L"oak");
        }
    };
    auto* const dialog = new Perishing<Leaving>;
    ASSERT_TRUE(dialog->Create(IDD_ERROR_DIALOG));
    ::SendMessageW(*dialog, WM_COMMAND, IDOK, 0);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, L"oak");
    EXPECT_EQ(boxes()[0].helpId, static_cast<UINT>(IDD_ERROR_DIALOG));
}

TEST(ModalDialog, LetsAnyOtherExceptionPass)
{
    ErrorDialog dialog;
    dialog.onAct = [] { throw Foreign{}; };
    auto acting = Robot()
                      .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                      .then([] { ::PostMessageW(shownDialog(), kAct, 0, 0); })
                      .start();
    EXPECT_THROW(dialog.DoModal(), Foreign);
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}
