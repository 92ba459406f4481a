// A property sheet as a wizard.
#include "SheetScene.h"

#include <testkit/TestApp.h>

using namespace ovo::testkit;

namespace
{

class Wizard : public SheetScene
{
protected:
    Wizard()
    {
        sheet.SetWizardMode();
        general.deeds["active"] = [this] { sheet.SetWizardButtons(PSWIZB_NEXT); };
        colours.deeds["active"] = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT); };
        lists.deeds["active"] = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH); };
    }

    bool isShown(int id) const { return ::IsWindowVisible(::GetDlgItem(sheet.m_hWnd, id)); }

    std::function<bool()> active(const TestPage& page)
    {
        return [this, &page] { return sheet.GetActivePage() == &page && page.IsWindowVisible(); };
    }
};

} // namespace

TEST_F(Wizard, GoesThroughItsPagesToTheEnd)
{
    const INT_PTR answer = show([this](Story story) {
        return story.waitFor("its buttons", [this] { return !isEnabled(ID_WIZBACK); })
            .then([this] {
                EXPECT_TRUE(isEnabled(ID_WIZNEXT));
                EXPECT_FALSE(isShown(AFX_IDC_TAB_CONTROL));
                general.SetDlgItemInt(IDC_NUMBER, 11);
            })
            .click(button(ID_WIZNEXT))
            .waitFor("the second page", active(colours))
            .waitFor("its buttons", [this] { return isEnabled(ID_WIZBACK); })
            .then([this] { EXPECT_EQ(general.number, 11); })
            .click(button(ID_WIZNEXT))
            .waitFor("the last page", active(lists))
            .waitFor("its button", [this] { return isShown(ID_WIZFINISH); })
            .then([this] {
                EXPECT_FALSE(isShown(ID_WIZNEXT));
                lists.SetDlgItemInt(IDC_NUMBER, 13);
                taken();
            })
            .click(button(ID_WIZFINISH));
    });
    EXPECT_EQ(answer, ID_WIZFINISH);
    EXPECT_EQ(taken().back(), "lists finish");
    EXPECT_EQ(lists.number, 13) << "read at the end";
}

TEST_F(Wizard, GoesBack)
{
    show([this](Story story) {
        return story.click(button(ID_WIZNEXT))
            .waitFor("the second page", active(colours))
            .waitFor("its buttons", [this] { return isEnabled(ID_WIZBACK); })
            .then([this] { taken(); })
            .click(button(ID_WIZBACK))
            .waitFor("the first page", active(general))
            .then([this] {
                EXPECT_EQ(taken(), (Calls{"colours back", "colours left", "general active"}));
            })
            .key(VK_ESCAPE);
    });
}

TEST_F(Wizard, APageMayStayOrJump)
{
    general.answers["next"] = -1;
    show([this](Story story) {
        return story.then([this] { taken(); })
            .click(button(ID_WIZNEXT))
            .waitFor("the question", [this] { return !calls.empty(); })
            .then([this] {
                EXPECT_EQ(taken(), Calls{"general next"});
                EXPECT_EQ(sheet.GetActivePage(), &general);
                general.answers["next"] = IDD_LISTS;
            })
            .click(button(ID_WIZNEXT))
            .waitFor("the last page", active(lists))
            .then([this] { EXPECT_FALSE(colours.m_hWnd); })
            .key(VK_ESCAPE);
    });
}

TEST_F(Wizard, TheEndMayBeRefused)
{
    sheet.SetActivePage(&lists);
    const INT_PTR answer = show([this](Story story) {
        return story.waitFor("its button", [this] { return isShown(ID_WIZFINISH); })
            .then([this] { lists.SetDlgItemInt(IDC_NUMBER, 999); })
            .click(button(ID_WIZFINISH))
            .waitFor("the refusal", [] { return TestApp::instance().boxes().size() == 1; })
            .then([this] {
                EXPECT_TRUE(sheet.m_hWnd);
                lists.SetDlgItemInt(IDC_NUMBER, 9);
                sheet.PressButton(PSBTN_FINISH);
            });
    });
    EXPECT_EQ(answer, ID_WIZFINISH);
    EXPECT_EQ(lists.number, 9);
}

TEST_F(Wizard, CancelGivesIdCancel)
{
    EXPECT_EQ(show([](Story story) { return story.key(VK_ESCAPE); }), IDCANCEL);
}

TEST_F(Wizard, TheFinishButtonTakesTheirPlace)
{
    const INT_PTR answer = show([this](Story story) {
        return story
            .then([this] {
                sheet.SetFinishText(L"Plant");
                EXPECT_EQ(textOf(ID_WIZFINISH), L"Plant");
                EXPECT_TRUE(isShown(ID_WIZFINISH));
                EXPECT_FALSE(isShown(ID_WIZNEXT));
                EXPECT_FALSE(isShown(ID_WIZBACK));
            })
            .click(button(ID_WIZFINISH));
    });
    EXPECT_EQ(answer, ID_WIZFINISH);
}

TEST_F(Wizard, ButtonsArePressedByCode)
{
    const INT_PTR answer = show([this](Story story) {
        return story.then([this] { sheet.PressButton(PSBTN_NEXT); })
            .waitFor("the second page", active(colours))
            .then([this] { sheet.PressButton(PSBTN_BACK); })
            .waitFor("the first page", active(general))
            .then([this] { sheet.PressButton(PSBTN_FINISH); });
    });
    EXPECT_EQ(answer, ID_WIZFINISH);
}

TEST_F(Wizard, ModelessItKeepsItsButtonsAndGoesWithTheLast)
{
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_TRUE(isShown(IDCANCEL));
    EXPECT_TRUE(isShown(ID_WIZNEXT));
    sheet.PressButton(PSBTN_FINISH);
    Robot().waitFor("the end", [this] { return !sheet.m_hWnd; });
    EXPECT_EQ(taken().back(), "general finish");
}
