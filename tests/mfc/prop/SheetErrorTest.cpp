// Exceptions out of the handlers of pages and sheet.
#include "SheetScene.h"

#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

/// A handler, and what makes the sheet call it.
struct Cause
{
    const char* call;
    std::function<void(TestSheet&)> provoke;
    bool wizard = false;
};

void PrintTo(const Cause& cause, std::ostream* out)
{
    *out << cause.call;
}

const Cause kCauses[] = {
    {"init", [](TestSheet&) {}},
    {"active", [](TestSheet&) {}},
    {"left", [](TestSheet& sheet) { sheet.PressButton(PSBTN_OK); }},
    {"apply", [](TestSheet& sheet) { sheet.PressButton(PSBTN_OK); }},
    {"ok", [](TestSheet& sheet) { sheet.PressButton(PSBTN_OK); }},
    {"query cancel", [](TestSheet& sheet) { sheet.PressButton(PSBTN_CANCEL); }},
    {"reset", [](TestSheet& sheet) { sheet.PostMessage(WM_CLOSE); }},
    {"cancel", [](TestSheet& sheet) { sheet.PressButton(PSBTN_CANCEL); }},
    {"next", [](TestSheet& sheet) { sheet.PressButton(PSBTN_NEXT); }, true},
    {"back", [](TestSheet& sheet) { sheet.PressButton(PSBTN_BACK); }, true},
    {"finish", [](TestSheet& sheet) { sheet.PressButton(PSBTN_FINISH); }, true},
};

class SheetError : public SheetScene, public ::testing::WithParamInterface<Cause>
{
protected:
    SheetError()
    {
        if (GetParam().wizard)
            sheet.SetWizardMode();
    }

    /// Shows the sheet, which is made to call the handler.
    INT_PTR provoke(Story story = Robot().then([] {}))
    {
        sheet.onInit = [](TestSheet& s) { GetParam().provoke(s); };
        return showUntilClosed(std::move(story));
    }
};

class SheetErrorAlone : public SheetScene
{
};

/// Fails when an exception was kept, to be raised by whatever is called next.
void expectNothingPending()
{
    CWnd any;
    any.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_POPUP, CRect(), nullptr, 0);
    EXPECT_NO_THROW(any.SendMessage(WM_NULL)) << "an exception was left over";
    any.DestroyWindow();
}

} // namespace

TEST_P(SheetError, ComesOutOfDoModal)
{
    const WindowCounter windows;
    general.deeds[GetParam().call] = [] { throw std::runtime_error("oak"); };
    EXPECT_THROW(provoke(), std::runtime_error);
    EXPECT_FALSE(sheet.m_hWnd);
    EXPECT_FALSE(general.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(windows.grown(), 0);
    expectNothingPending();

    general.deeds.clear();
    sheet.onInit = [](TestSheet& s) { s.EndDialog(5); };
    EXPECT_EQ(showUntilClosed(sheet), 5) << "the same object may be shown again";
}

TEST_P(SheetError, OfTheFrameworkIsReportedAndRefuses)
{
    const std::string call = GetParam().call;
    bool thrown = false;
    general.deeds[call] = [&] {
        if (!std::exchange(thrown, true))
            AfxThrowResourceException();
    };
    auto closing =
        Robot().waitFor("the report", [] { return !TestApp::instance().boxes().empty(); }).then([this] {
            if (sheet.m_hWnd)
                sheet.EndDialog(99);
        });
    const INT_PTR answer = provoke(std::move(closing));
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
    const bool cannotRefuse = call == "reset" || call == "cancel";
    EXPECT_EQ(answer, cannotRefuse ? IDCANCEL : 99);
}

INSTANTIATE_TEST_SUITE_P(Calls, SheetError, ::testing::ValuesIn(kCauses), [](const auto& info) {
    std::string name = info.param.call;
    std::erase(name, ' ');
    return name;
});

TEST_F(SheetErrorAlone, InTheSheetsInitialisationComesOut)
{
    sheet.onInit = [](TestSheet&) { throw std::runtime_error("elm"); };
    EXPECT_THROW(showUntilClosed(sheet), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_THROW(sheet.Create(&owner), std::runtime_error);
    EXPECT_FALSE(sheet.m_hWnd);
    expectNothingPending();
}

TEST_F(SheetErrorAlone, WhenAPageIsChosenByCodeComesOutOfTheCall)
{
    colours.deeds["active"] = [] { throw std::runtime_error("ash"); };
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_THROW(sheet.SetActivePage(1), std::runtime_error);
    EXPECT_TRUE(sheet.m_hWnd);
    expectNothingPending();
}

TEST_F(SheetErrorAlone, OfAModelessSheetComesOutOfTheMessageThatLedThere)
{
    general.deeds["apply"] = [] { throw std::runtime_error("yew"); };
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_THROW(sheet.SendMessage(WM_COMMAND, IDOK), std::runtime_error);
    EXPECT_TRUE(sheet.m_hWnd) << "what was not applied does not close it";
    general.deeds.clear();
    sheet.SendMessage(WM_COMMAND, IDOK);
    EXPECT_FALSE(sheet.m_hWnd);
}

TEST_F(SheetErrorAlone, WhenATabIsClickedComesOutOfDoModal)
{
    general.deeds["left"] = [] { throw std::runtime_error("fir"); };
    EXPECT_THROW(showUntilClosed(whenShown().click(tab(1))), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
}
