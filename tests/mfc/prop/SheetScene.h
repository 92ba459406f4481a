// A property sheet with pages that take down what they are asked.
#pragma once

#include "resource.h"

#include <testkit/Desktop.h>
#include <testkit/Robot.h>

#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

using Calls = std::vector<std::string>;

/// A page with a number from 0 to 100 in an edit control. It takes down its calls, "name call", and answers
/// and does what a test wants.
class TestPage : public CPropertyPage
{
public:
    TestPage(std::string name, Calls& calls, UINT templateId = IDD_GENERAL, UINT captionId = 0);

    int number = 7;
    std::map<std::string, LRESULT> answers;             ///< instead of what the framework answers
    std::map<std::string, std::function<void()>> deeds; ///< done in a call
    std::function<LRESULT(WPARAM, LPARAM)> onQuery;     ///< PSM_QUERYSIBLINGS
    std::function<void()> onAct;                        ///< the button
    bool deletesItself = false;

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    BOOL OnKillActive() override;
    BOOL OnApply() override;
    void OnOK() override;
    void OnReset() override;
    void OnCancel() override;
    BOOL OnQueryCancel() override;
    LRESULT OnWizardBack() override;
    LRESULT OnWizardNext() override;
    BOOL OnWizardFinish() override;

    using CPropertyPage::m_nIDHelp;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void PostNcDestroy() override;
    afx_msg LRESULT OnQuery(WPARAM wParam, LPARAM lParam);
    afx_msg void OnAct();
    DECLARE_MESSAGE_MAP()

private:
    template <class Base>
    LRESULT told(const std::string& call, Base base);

    std::string m_name;
    Calls& m_calls;
};

class TestSheet : public CPropertySheet
{
public:
    using CPropertySheet::CPropertySheet;

    std::function<void(TestSheet&)> onInit;
    std::function<void()> onGone;
    int shown = 0; ///< how often WM_SHOWWINDOW said so

    BOOL OnInitDialog() override;

protected:
    void PostNcDestroy() override;
    afx_msg void OnShowWindow(BOOL show, UINT status);
    DECLARE_MESSAGE_MAP()
};

/// A sheet with the pages "general" and "colours" under their names, and "lists".
class SheetScene : public ::testing::Test
{
protected:
    SheetScene();
    ~SheetScene() override;

    /// A story that begins when the sheet waits for the user.
    ovo::testkit::Story whenShown();

    /// Runs a story while the sheet is shown modally; gives what DoModal gives.
    template <class Tell>
    INT_PTR show(Tell tell)
    {
        return showUntilClosed(tell(whenShown()));
    }

    /// The same for a story that began, or will begin, when it says. A sheet that stays open after the story
    /// fails the test and is closed.
    INT_PTR showUntilClosed(ovo::testkit::Story story) { return showUntilClosed(sheet, std::move(story)); }
    static INT_PTR showUntilClosed(CPropertySheet& shown, ovo::testkit::Story story);
    /// Without a story.
    static INT_PTR showUntilClosed(CPropertySheet& shown);

    ovo::testkit::Spot button(int id);
    ovo::testkit::Spot tab(int index);
    std::wstring textOf(int id) const; ///< Of a control of the sheet.
    bool isEnabled(int id) const;

    /// The calls since the last time.
    Calls taken();

    CWnd owner;
    Calls calls;
    TestPage general{"general", calls};
    TestPage colours{"colours", calls, IDD_COLOURS, IDS_COLOURS};
    TestPage lists{"lists", calls, IDD_LISTS};
    TestSheet sheet{L"Trees", &owner};
};
