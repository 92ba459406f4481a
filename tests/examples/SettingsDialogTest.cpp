// The settings dialog: its pages, the preview, and what is found again after a restart.
#include "ExampleScene.h"
#include "settings-dialog/resource.h"

#include <commctrl.h>

#include <optional>

using namespace ovo::testkit;

namespace
{

class SettingsDialog : public Example
{
protected:
    SettingsDialog() { start(); }

    void start()
    {
        m_program.reset();
        m_program.emplace(L"settings-dialog");
    }

    HWND item(int id) const { return ::GetDlgItem(m_program->main(), id); }

    /// A control on one of the pages.
    HWND onPage(int id) const
    {
        for (HWND page = ::GetWindow(item(IDC_TABS), GW_CHILD); page; page = ::GetWindow(page, GW_HWNDNEXT))
            if (const HWND control = ::GetDlgItem(page, id))
                return control;
        return nullptr;
    }

    void fill(int id, const std::wstring& text)
    {
        m_program->click(onPage(id));
        m_program->chord(VK_CONTROL, 'A');
        m_program->type(text);
        m_program->waitFor("the text", [&] { return textOf(onPage(id)) == text; });
    }

    void nextPage(int id)
    {
        m_program->chord(VK_CONTROL, VK_TAB);
        m_program->waitFor("the page", [=, this] { return ::IsWindowVisible(onPage(id)) != FALSE; });
    }

    void waitForPreviewOtherThan(const Picture& before)
    {
        m_program->waitFor("another preview",
                           [&] { return seen(item(IDC_PREVIEW)).differences(before) > 100; });
    }

    void end(int button)
    {
        m_program->click(item(button));
        EXPECT_TRUE(m_program->endsByItself());
    }

    std::optional<RunningProgram> m_program;
};

} // namespace

TEST_F(SettingsDialog, ShowsWhatIsTypedAndKeepsItWithOk)
{
    shoot(m_program->main(), L"settings-dialog");
    const Picture before = seen(item(IDC_PREVIEW));
    fill(IDC_POINTS, L"20");
    waitForPreviewOtherThan(before);
    end(IDOK);
    start();
    EXPECT_EQ(textOf(onPage(IDC_POINTS)).substr(0, 2), L"20");
    end(IDCANCEL);
}

TEST_F(SettingsDialog, ForgetsAllWithCancel)
{
    const std::wstring before = textOf(onPage(IDC_POINTS));
    fill(IDC_POINTS, L"30");
    end(IDCANCEL);
    start();
    EXPECT_EQ(textOf(onPage(IDC_POINTS)), before);
    end(IDCANCEL);
}

TEST_F(SettingsDialog, StaysOpenForANumberThatIsNone)
{
    fill(IDC_POINTS, L"large");
    m_program->click(item(IDOK));
    m_program->waitFor("the message", [this] { return !::IsWindowEnabled(m_program->main()); });
    m_program->key(VK_ESCAPE);
    m_program->waitFor("its end", [this] { return ::IsWindowEnabled(m_program->main()) != FALSE; });
    fill(IDC_POINTS, L"12");
    end(IDOK);
}

TEST_F(SettingsDialog, ShowsThePageWithTheNumberThatIsNone)
{
    fill(IDC_POINTS, L"large");
    nextPage(IDC_INK);
    m_program->click(item(IDOK));
    m_program->waitFor("the message", [this] { return !::IsWindowEnabled(m_program->main()); });
    EXPECT_TRUE(::IsWindowVisible(onPage(IDC_POINTS))) << "behind the message";
    EXPECT_EQ(ask(item(IDC_TABS), TCM_GETCURSEL), 0);
    m_program->key(VK_ESCAPE);
    m_program->waitFor("its end", [this] { return ::IsWindowEnabled(m_program->main()) != FALSE; });
    m_program->type(L"12"); // the number is selected
    m_program->waitFor("the number", [this] { return textOf(onPage(IDC_POINTS)) == L"12"; });
    end(IDOK);
}

TEST_F(SettingsDialog, IsUsedByKeyboardAlone)
{
    const auto waitForFocus = [this](int id) {
        m_program->waitFor("the focus", [=, this] {
            GUITHREADINFO thread{};
            thread.cbSize = sizeof thread;
            const HWND control = onPage(id);
            return ::GetGUIThreadInfo(::GetWindowThreadProcessId(control, nullptr), &thread) &&
                   (thread.hwndFocus == control || ::IsChild(control, thread.hwndFocus));
        });
    };
    waitForFocus(IDC_FONT);
    m_program->key(VK_TAB);
    waitForFocus(IDC_POINTS);
    nextPage(IDC_INK);
    waitForFocus(IDC_INK);
    nextPage(IDC_MARK);
    waitForFocus(IDC_MARK);
    m_program->key(VK_ESCAPE);
    EXPECT_TRUE(m_program->endsByItself());
}

TEST_F(SettingsDialog, TakesWhatIsTypedWithEnter)
{
    fill(IDC_POINTS, L"21");
    m_program->key(VK_RETURN);
    EXPECT_TRUE(m_program->endsByItself());
    start();
    EXPECT_EQ(textOf(onPage(IDC_POINTS)).substr(0, 2), L"21");
    end(IDCANCEL);
}

TEST_F(SettingsDialog, FollowsTheSlider)
{
    const Picture before = seen(item(IDC_PREVIEW));
    const std::wstring size = textOf(onPage(IDC_POINTS));
    m_program->click(onPage(IDC_POINTS));
    m_program->key(VK_TAB); // to the slider button
    m_program->key(VK_SPACE);
    m_program->key(VK_RIGHT, 5);
    m_program->waitFor("a larger size", [&] { return textOf(onPage(IDC_POINTS)) != size; });
    waitForPreviewOtherThan(before);
    shoot(m_program->main(), L"settings-dialog-slider");
    m_program->key(VK_ESCAPE); // the popup
    m_program->waitFor("the size of before", [&] { return textOf(onPage(IDC_POINTS)) == size; });
    end(IDCANCEL);
}

TEST_F(SettingsDialog, ShowsAnotherInkAndItsContrast)
{
    nextPage(IDC_INK);
    shoot(m_program->main(), L"settings-dialog-colours");
    const std::wstring before = textOf(onPage(IDC_CONTRAST));
    EXPECT_TRUE(before.starts_with(L"Contrast ")) << "it is there at once";
    const Picture preview = seen(item(IDC_PREVIEW));
    m_program->click(onPage(IDC_INK));
    m_program->key(VK_RIGHT);
    m_program->key(VK_DOWN);
    m_program->key(VK_RETURN);
    m_program->waitFor("the contrast", [&] { return textOf(onPage(IDC_CONTRAST)) != before; });
    waitForPreviewOtherThan(preview);
    end(IDCANCEL);
}

TEST_F(SettingsDialog, TurnsTheMark)
{
    nextPage(IDC_INK);
    nextPage(IDC_ANGLE);
    const Picture before = seen(item(IDC_PREVIEW));
    m_program->click(onPage(IDC_MARK));
    m_program->key(VK_TAB, 3); // past the strength and its slider
    m_program->key(VK_LEFT, 20);
    waitForPreviewOtherThan(before);
    shoot(m_program->main(), L"settings-dialog-mark");
    end(IDCANCEL);
}
