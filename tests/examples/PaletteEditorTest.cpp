// The palette editor with the palette that it begins with.
#include "ExampleScene.h"
#include "palette-editor/resource.h"

#include <testkit/TemporaryFiles.h>

#include <ovouires/resource.h>

#include <commctrl.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>

using namespace ovo::testkit;

namespace
{

// The keys for the buttons of the question whether to save
const std::vector<WORD> kYes{VK_RETURN};
const std::vector<WORD> kNo{VK_TAB, VK_SPACE};
const std::vector<WORD> kCancel{VK_ESCAPE};

/// All that a message box says.
std::wstring said(HWND box)
{
    std::wstring text;
    for (HWND part = ::GetWindow(box, GW_CHILD); part; part = ::GetWindow(part, GW_HWNDNEXT))
        text += textOf(part);
    return text;
}

/// A file that nobody else can open.
class HeldFile
{
public:
    explicit HeldFile(const std::wstring& path)
        : m_file(::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(m_file, INVALID_HANDLE_VALUE);
    }
    ~HeldFile() { ::CloseHandle(m_file); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

private:
    HANDLE m_file;
};

class PaletteEditor : public Example
{
protected:
    HWND item(int id) const { return ::GetDlgItem(m_program.main(), id); }
    int rows() const { return ask(item(IDC_LIST), LVM_GETITEMCOUNT); }
    std::wstring hue() const { return textOf(item(IDC_COLOUR_VALUE_1)); }
    bool canUndo() const { return ::IsWindowEnabled(item(IDC_UNDO)); }

    /// A button that has nothing left to do is disabled, and not pressed again.
    void pressUntil(int button, const std::function<bool()>& condition)
    {
        m_program.tryUntil(
            "button " + std::to_string(button), [=, this] { m_program.clickNow(item(button)); }, condition);
    }

    /// A button that asks the user, who cannot use the editor then.
    void pressToBeAsked(int button)
    {
        pressUntil(button, [this] { return !::IsWindowEnabled(m_program.main()); });
    }

    void waitForRows(int count)
    {
        m_program.waitFor("the rows", [=, this] { return rows() == count; });
    }
    void waitForHue(const std::wstring& wanted)
    {
        m_program.waitFor("the hue", [&] { return hue() == wanted; });
    }

    /// A point of the ring, in the dialog's client coordinates: clockwise from the right, in degrees.
    CPoint onRing(double degrees) const
    {
        CRect wheel = rectOf(item(IDC_WHEEL));
        ::MapWindowPoints(nullptr, m_program.main(), reinterpret_cast<POINT*>(&wheel), 2);
        const double radius = 0.45 * std::min(wheel.Width(), wheel.Height());
        const double angle = degrees * 3.14159265358979 / 180;
        return wheel.CenterPoint() +
               CSize(std::lround(radius * std::cos(angle)), std::lround(radius * std::sin(angle)));
    }

    /// Moves the first colour below the second.
    void change()
    {
        m_program.click(item(IDC_DOWN));
        m_program.waitFor("the change", [this] { return canUndo(); });
    }

    /// The question whether to save where it can be answered now, or null.
    HWND asked() const
    {
        const HWND box = ::GetForegroundWindow();
        const bool asks = ::GetWindow(box, GW_OWNER) == m_program.main() && ::GetDlgItem(box, IDYES) &&
                          ::GetDlgItem(box, IDNO) && ::GetDlgItem(box, IDCANCEL);
        return asks ? box : nullptr;
    }

    HWND question()
    {
        HWND box = nullptr;
        m_program.waitFor("the question whether to save", [&] { return (box = asked()) != nullptr; });
        return box;
    }

    void answer(const std::vector<WORD>& keys)
    {
        const HWND box = question();
        for (const WORD key : keys)
            m_program.key(key);
        m_program.waitFor("the end of the question", [box] { return !::IsWindow(box); });
    }

    void waitForEditor()
    {
        m_program.waitFor("the editor", [this] { return ::IsWindowEnabled(m_program.main()) != FALSE; });
    }

    void cancelFileDialog(HWND dialog)
    {
        m_program.key(VK_ESCAPE);
        m_program.waitFor("the end of the file dialog", [dialog] { return !::IsWindow(dialog); });
        waitForEditor();
    }

    /// What the program answers to the system, which wants to end the session: 1 for yes, 0 for no, -1 when
    /// there is no answer in time.
    std::future<int> askedForTheSession() const
    {
        return std::async(std::launch::async, [main = m_program.main()] {
            DWORD_PTR agrees = 0;
            const UINT limit = static_cast<UINT>(RunningProgram::kPatience.count());
            const LRESULT answered =
                ::SendMessageTimeoutW(main, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, limit, &agrees);
            return answered ? static_cast<int>(agrees) : -1;
        });
    }

    /// Nothing is asked: all that was changed has been saved or undone.
    void close()
    {
        pressUntil(IDCANCEL, [this] { return !::IsWindow(m_program.main()); });
        EXPECT_TRUE(m_program.endsByItself());
    }

    void closeWithoutSaving()
    {
        pressToBeAsked(IDCANCEL);
        answer(kNo);
        EXPECT_TRUE(m_program.endsByItself());
    }

    void closeAndSave(const std::wstring& path)
    {
        m_program.key(VK_ESCAPE);
        answer(kYes);
        openedFileDialog(m_program);
        m_program.type(path);
        m_program.key(VK_RETURN);
        EXPECT_TRUE(m_program.endsByItself());
    }

    RunningProgram m_program{L"palette-editor"};
};

} // namespace

TEST_F(PaletteEditor, ShowsTheColourOfTheRow)
{
    EXPECT_EQ(rows(), 10);
    const std::wstring first = hue();
    m_program.key(VK_DOWN);
    m_program.waitFor("another hue", [&] { return hue() != first; });
    shoot(m_program.main(), L"palette-editor");
    EXPECT_FALSE(canUndo()) << "looking changes nothing";
    close();
}

TEST_F(PaletteEditor, UndoesADragAtOnce)
{
    const std::wstring before = hue();
    const std::vector<CPoint> way{onRing(0), onRing(20), onRing(40), onRing(60), onRing(80)};
    m_program.tryUntil(
        "a change", [&] { m_program.drag(m_program.main(), way); }, [this] { return canUndo(); });
    const auto isAnother = [&] { return hue() != before; };
    m_program.waitFor("another hue", isAnother);
    pressUntil(IDC_UNDO, [&] { return hue() == before; });
    EXPECT_FALSE(canUndo()) << "the drag was one step";
    pressUntil(IDC_REDO, isAnother);
    closeWithoutSaving();
}

TEST_F(PaletteEditor, TakesATypedNumber)
{
    m_program.click(item(IDC_COLOUR_VALUE_1));
    m_program.chord(VK_CONTROL, 'A');
    m_program.type(L"200");
    m_program.key(VK_TAB);
    m_program.waitFor("the change", [this] { return canUndo(); });
    waitForHue(L"200");
    closeWithoutSaving();
}

TEST_F(PaletteEditor, AddsAndRemovesColours)
{
    m_program.click(item(IDC_ADD));
    waitForRows(11);
    m_program.waitFor("the name's editor",
                      [this] { return m_program.child(item(IDC_LIST), L"Edit") != nullptr; });
    m_program.type(L"Rose");
    m_program.key(VK_RETURN);
    m_program.waitFor("the editor's end", [this] { return !m_program.child(item(IDC_LIST), L"Edit"); });
    m_program.key(VK_DELETE);
    waitForRows(10);
    m_program.chord(VK_CONTROL, 'Z');
    waitForRows(11);
    m_program.chord(VK_CONTROL, 'Z'); // the name
    m_program.chord(VK_CONTROL, 'Z');
    waitForRows(10);
    EXPECT_FALSE(canUndo());
    close();
}

/// AltGr is Ctrl and Alt, and writes letters with Z and Y on some keyboards.
TEST_F(PaletteEditor, UndoesNothingByAltGr)
{
    change();
    m_program.chord({VK_CONTROL, VK_MENU}, 'Z');
    m_program.key(VK_ESCAPE);
    answer(kNo); // it is asked, since the change is still there
    EXPECT_TRUE(m_program.endsByItself());
}

TEST_F(PaletteEditor, BringsNothingBackByAltGr)
{
    change();
    pressUntil(IDC_UNDO, [this] { return !canUndo(); });
    m_program.chord({VK_CONTROL, VK_MENU}, 'Y');
    m_program.key(VK_ESCAPE);
    EXPECT_TRUE(m_program.endsByItself()) << "nothing is asked, since nothing has changed";
}

TEST_F(PaletteEditor, TakesNoStepBackToWhereNothingHasChanged)
{
    m_program.click(item(IDC_LIST), CPoint(20, rectOf(item(IDC_LIST)).Height() - 8)); // none selected
    m_program.click(item(IDC_REMOVE));
    change();
    m_program.click(item(IDC_UNDO));
    m_program.waitFor("the end: there was one step", [this] { return !canUndo(); });
    close();
}

TEST_F(PaletteEditor, TurnsTheHuesOfAllColours)
{
    const std::wstring before = hue();
    m_program.click(item(IDC_LIST), CPoint(20, rectOf(item(IDC_LIST)).Height() - 8)); // none selected
    const CRect knob = rectOf(item(IDC_TURN));
    const CPoint middle(knob.Width() / 2, knob.Height() / 2);
    const CPoint right(knob.Width() - 4, knob.Height() / 2);
    const std::vector<CPoint> way{CPoint(middle.x, 4), CPoint(middle.x + middle.x / 2, 8), right};
    const auto isAQuarterOn = [&] { return std::abs(std::stoi(hue()) - std::stoi(before) - 90) <= 2; };
    int turns = 0; // on a busy machine the change may come after the next try has begun
    const auto turn = [&] {
        ++turns;
        m_program.drag(item(IDC_TURN), way);
    };
    m_program.tryUntil("the change", turn, [this] { return canUndo(); });
    if (turns == 1) {
        m_program.waitFor("a quarter of a turn, which shows when it is painted", isAQuarterOn);
        pressUntil(IDC_UNDO, [&] { return hue() == before; });
        EXPECT_FALSE(canUndo()) << "one turn is one step";
    }
    pressUntil(IDC_UNDO, [this] { return !canUndo(); });
    m_program.waitFor("the hue of before", [&] { return hue() == before; });
    close();
}

TEST_F(PaletteEditor, MovesASliderAndGoesBack)
{
    const std::wstring before = hue();
    const auto press = [this] { m_program.click(item(IDC_COLOUR_SLIDER_1)); }; // beside the thumb
    m_program.tryUntil("a change", press, [this] { return canUndo(); });
    m_program.waitFor("another hue", [&] { return hue() != before; });
    pressUntil(IDC_UNDO, [this] { return !canUndo(); });
    m_program.waitFor("the hue of before", [&] { return hue() == before; });
    close();
}

TEST_F(PaletteEditor, SavesWhatWasMovedAndAddedAndOpensItAgain)
{
    const TemporaryFiles files;
    change();
    m_program.click(item(IDC_ADD)); // behind what was moved
    waitForRows(11);
    m_program.waitFor("the name's editor",
                      [this] { return m_program.child(item(IDC_LIST), L"Edit") != nullptr; });
    m_program.type(L"Gr\u00FCn \u4E2D");
    m_program.key(VK_RETURN);
    m_program.waitFor("the editor's end", [this] { return !m_program.child(item(IDC_LIST), L"Edit"); });

    pressToBeAsked(IDC_SAVE);
    answerFileDialog(m_program, files.path(L"saved"));
    const std::wstring path = files.path(L"saved.txt");
    const std::vector<std::wstring> lines = savedLines(m_program, path);
    ASSERT_EQ(lines.size(), 11u);
    EXPECT_TRUE(lines[0].ends_with(L" Fern")) << ::testing::PrintToString(lines[0]);
    EXPECT_EQ(lines[1], L"#5B7B3E Moss");
    EXPECT_TRUE(lines[2].ends_with(L" Gr\u00FCn \u4E2D")) << "no letter is lost, whatever the code page";

    pressUntil(IDC_REMOVE, [this] { return rows() < 11; });
    pressToBeAsked(IDC_OPEN);
    answer(kNo);
    answerFileDialog(m_program, path);
    waitForRows(11);
    close();
}

TEST_F(PaletteEditor, AsksBeforeChangesAreLostHoweverItIsClosed)
{
    change();
    const std::function<void()> ways[] = {[this] { m_program.key(VK_ESCAPE); },
                                          [this] { m_program.chord(VK_MENU, VK_F4); },
                                          [this] { m_program.click(item(IDCANCEL)); }};
    for (const auto& closing : ways) {
        closing();
        answer(kCancel);
    }
    EXPECT_TRUE(canUndo()) << "the change is still there";
    m_program.key(VK_ESCAPE);
    answer(kNo);
    EXPECT_TRUE(m_program.endsByItself());
}

TEST_F(PaletteEditor, ClosesAtOnceWhereTheChangesAreUndone)
{
    change();
    pressUntil(IDC_UNDO, [this] { return !canUndo(); });
    m_program.key(VK_ESCAPE);
    EXPECT_TRUE(m_program.endsByItself());
}

TEST_F(PaletteEditor, TakesOverWhatIsBeingTypedWhenItIsClosed)
{
    m_program.click(item(IDC_COLOUR_VALUE_1));
    m_program.chord(VK_CONTROL, 'A');
    m_program.type(L"200");
    waitForHue(L"200");
    EXPECT_FALSE(canUndo()) << "it is only typed";
    m_program.key(VK_ESCAPE);
    answer(kCancel);
    EXPECT_TRUE(canUndo());
    EXPECT_EQ(hue(), L"200");
    closeWithoutSaving();
}

TEST_F(PaletteEditor, SavesWhenItIsClosedAndTheUserWantsIt)
{
    const TemporaryFiles files;
    change();
    closeAndSave(files.path(L"kept"));
    const std::vector<std::wstring> lines = savedLines(m_program, files.path(L"kept.txt"));
    ASSERT_EQ(lines.size(), 10u);
    EXPECT_EQ(lines[1], L"#5B7B3E Moss");
}

TEST_F(PaletteEditor, StaysWhenTheFileDialogIsCancelled)
{
    change();
    m_program.key(VK_ESCAPE);
    answer(kYes);
    cancelFileDialog(openedFileDialog(m_program));
    EXPECT_TRUE(canUndo());
    closeWithoutSaving();
}

TEST_F(PaletteEditor, StaysWithTheChangesWhenTheFileCannotBeWritten)
{
    const TemporaryFiles files{L"busy.txt"};
    change();
    m_program.key(VK_ESCAPE);
    {
        const HeldFile held(files.path(L"busy.txt"));
        answer(kYes);
        const HWND dialog = openedFileDialog(m_program);
        m_program.type(files.path(L"busy.txt"));
        m_program.key(VK_RETURN);
        HWND replacing = nullptr;
        m_program.waitFor("the question whether to replace the file", [&] {
            replacing = ::GetForegroundWindow();
            return replacing != dialog && ::GetDlgItem(replacing, IDYES);
        });
        m_program.click(::GetDlgItem(replacing, IDYES));
        m_program.waitFor("the end of the file dialog", [dialog] { return !::IsWindow(dialog); });
        m_program.waitFor("the message that names the file", [replacing] {
            const HWND box = ::GetForegroundWindow();
            return box != replacing && said(box).find(L"busy.txt") != std::wstring::npos;
        });
    }
    m_program.key(VK_RETURN);
    waitForEditor();
    EXPECT_TRUE(canUndo());

    closeAndSave(files.path(L"free.txt"));
    EXPECT_EQ(savedLines(m_program, files.path(L"free.txt")).at(1), L"#5B7B3E Moss");
}

TEST_F(PaletteEditor, AsksBeforeItOpensAnotherPalette)
{
    const TemporaryFiles files;
    std::ofstream(std::filesystem::path(files.path(L"two.txt"))) << "#102030 Night\nsteelblue Steel\n";
    change();
    pressToBeAsked(IDC_OPEN);
    answer(kCancel);
    waitForEditor();
    pressToBeAsked(IDC_OPEN); // the first time no file was asked for, or the editor would be disabled
    answer(kNo);
    answerFileDialog(m_program, files.path(L"two.txt"));
    waitForRows(2);
    m_program.key(VK_ESCAPE); // what was opened has not changed
    EXPECT_TRUE(m_program.endsByItself());
}

TEST_F(PaletteEditor, AsksBeforeTheSessionEnds)
{
    EXPECT_EQ(askedForTheSession().get(), 1) << "nothing would be lost";
    pressToBeAsked(IDC_OPEN);
    const HWND dialog = openedFileDialog(m_program);
    EXPECT_EQ(askedForTheSession().get(), 1) << "nor while a file is asked for";
    cancelFileDialog(dialog);
    change();
    std::future<int> answered = askedForTheSession();
    question();
    EXPECT_EQ(askedForTheSession().get(), 0) << "the user is asked once at a time";
    answer(kCancel);
    EXPECT_EQ(answered.get(), 0);
    EXPECT_TRUE(canUndo());
    answered = askedForTheSession();
    answer(kNo);
    EXPECT_EQ(answered.get(), 1);
}

TEST(PaletteFile, ThatCannotBeReadIsTold)
{
    const TemporaryFiles files;
    RunningProgram program(L"palette-editor", L"\"" + files.path(L"gone.txt") + L"\"");
    EXPECT_EQ(::GetDlgItem(program.main(), IDC_LIST), nullptr) << "a message instead of the editor";
    const std::wstring message = said(program.main());
    EXPECT_NE(message.find(L"gone.txt"), std::wstring::npos) << ::testing::PrintToString(message);
    program.key(VK_RETURN);
    EXPECT_TRUE(program.endsByItself());
}

TEST(PaletteFile, IsReadAtTheStart)
{
    const TemporaryFiles files;
    std::ofstream(std::filesystem::path(files.path(L"two.txt")))
        << "#102030 Night\nno colour\nsteelblue Steel\n";
    RunningProgram program(L"palette-editor", L"\"" + files.path(L"two.txt") + L"\"");
    EXPECT_EQ(::SendMessageW(::GetDlgItem(program.main(), IDC_LIST), LVM_GETITEMCOUNT, 0, 0), 2);
    program.key(VK_ESCAPE);
    EXPECT_TRUE(program.endsByItself());
}
