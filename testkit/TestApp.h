#pragma once

#include <afxwin.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace ovo::testkit
{

/// A message box that was asked for.
struct AskedBox
{
    /// What the box says.
    std::wstring text;
    /// Its MB_ flags.
    UINT type;
    /// Its help context; 0 for none.
    UINT helpId;
};

/// A call for help.
struct AskedHelp
{
    /// What it is about.
    DWORD_PTR data;
    /// HH_ or HELP_ command.
    UINT command;
};

/// The application of every test program. It shows neither message boxes nor help, but writes down that
/// they were asked for: a box without an answer would stop the test.
class TestApp : public CWinApp
{
public:
    /// The one object there is. Not where the program has an application of its own.
    static TestApp& instance();

    /// The boxes since the test began, in order.
    const std::vector<AskedBox>& boxes() const { return m_boxes; }
    /// The calls for help since the test began, in order.
    const std::vector<AskedHelp>& helps() const { return m_helps; }

    /// The `results` of the next boxes, in order; without any left it is IDOK.
    void answerBoxes(std::initializer_list<int> results);

    /// Shows boxes for real until forget() is called: for tests that answer them.
    void showBoxes() { m_showsBoxes = true; }

    /// Called while a box waits for its answer. May put another one in its place.
    std::function<void()> onBox;

    /// Back to the beginning; called before each test.
    void forget();

    int DoMessageBox(LPCTSTR text, UINT type, UINT helpId) override;
    void HtmlHelp(DWORD_PTR data, UINT command = HH_HELP_CONTEXT) override;
    void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT) override;

private:
    std::vector<AskedBox> m_boxes;
    std::vector<AskedHelp> m_helps;
    std::deque<int> m_results;
    bool m_showsBoxes = false;
};

} // namespace ovo::testkit
