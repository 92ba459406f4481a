// A keystroke in a combo box of 20,000 items. Each turn begins after a pause: on a busy machine one that
// follows at once is interrupted more often.
#include "BenchLists.h"

#include "support/InTurns.h"

#include <ovoui/lists/ComboBox.h>

#include <catch2/catch.hpp>

namespace
{

constexpr int kItems = 20000;

void pause()
{
    ::Sleep(10); // milliseconds
}

void fill(CComboBox& combo, CWnd& parent, int top)
{
    combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL,
                 CRect(0, top, 200, top + 300), &parent, 1);
    combo.InitStorage(kItems, kItems * 32);
    for (int i = 0; i < kItems - 1; ++i)
        combo.AddString((L"item " + std::to_wstring(100000 + i)).c_str());
    combo.AddString(L"the last item");
}

class BenchCombo : public COVOComboBox
{
public:
    explicit BenchCombo(CWnd& parent)
    {
        fill(*this, parent, 0);
        SetFocus();
    }

    void keystroke(wchar_t character) { GetWindow(GW_CHILD)->SendMessage(WM_CHAR, character, 1); }

    /// Nothing is typed, and nothing known of what was typed before.
    void clear(bool completes)
    {
        AutoComplete(true);
        SetWindowText(L"");
        keystroke(L'x');
        AutoComplete(completes);
        SetWindowText(L"");
        pause();
    }

    void type(wchar_t first, bool completes)
    {
        clear(completes);
        keystroke(first);
        pause();
    }
};

} // namespace

TEST_CASE("a keystroke with completion in a list of 20000 items")
{
    ListParent parent;
    BenchCombo combo(parent);
    CComboBox plain; // which always looks through all items
    fill(plain, parent, 100);
    InTurns turns;
    turns.add(
        "CB_FINDSTRING that finds the last item [baseline]", [&] { plain.FindString(-1, L"th"); }, &pause);
    turns.add(
        "a keystroke without completion", [&] { combo.keystroke(L'h'); }, [&] { combo.type(L't', false); });
    turns.add(
        "a keystroke with completion [at most 1.5]", [&] { combo.keystroke(L'h'); },
        [&] { combo.type(L't', true); });
    turns.add(
        "the first keystroke in an empty field [at most 1.5]", [&] { combo.keystroke(L't'); },
        [&] { combo.clear(true); });
    turns.add(
        "setting the text of the last item", [&] { combo.SetWindowText(L"the last item"); },
        [&] { combo.clear(false); });
    turns.run("a keystroke with completion in a list of 20000 items", 101);
    CString text;
    combo.GetWindowText(text);
    REQUIRE(text == L"the last item");
}
