// Call-outs of the combo box: the observer of its deletion, and what the parent is told.
#include "CallOutScene.h"
#include "RaisingParent.h"

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>

#include <ovoui/lists/ComboBox.h>
#include <ovoui/lists/ComboBoxDeletion.h>

using namespace ovo::testkit;

namespace
{

/// The text of the field is the one item, chosen by nobody yet.
class ComboScene : public CallOutScene
{
public:
    ComboScene()
    {
        combo.Create(kChild | CBS_DROPDOWN, CRect(0, 0, 150, 200), &host, 1);
        combo.AddString(L"Anise");
        combo.NotifyEditReturn(true);
        other.Create(L"Other", kChild, CRect(0, 100, 80, 124), &host, 2);
        present(host);
        combo.SetFocus();
        combo.SetWindowText(L"Anise");
    }
    void expectSound() override
    {
        GuiThread::settle();
        combo.SetFocus();
        combo.SetWindowText(L"Anise");
        type(VK_RETURN);
        EXPECT_EQ(combo.GetCurSel(), 0);
        EXPECT_EQ(combo.GetCount(), 1);
    }

protected:
    /// A key in the field, on its way through the message loop.
    void type(UINT key)
    {
        MSG message{::GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
        combo.PreTranslateMessage(&message);
        GuiThread::settle();
    }

    RaisingParent host{{{CBN_SETFOCUS, "CBN_SETFOCUS"},
                        {CBN_KILLFOCUS, "CBN_KILLFOCUS"},
                        {CBN_DROPDOWN, "CBN_DROPDOWN"},
                        {CBN_CLOSEUP, "CBN_CLOSEUP"},
                        {CBN_EDITUPDATE, "CBN_EDITUPDATE"},
                        {CBN_EDITCHANGE, "CBN_EDITCHANGE"},
                        {CBN_SELCHANGE, "CBN_SELCHANGE"},
                        {CBN_SELENDOK, "CBN_SELENDOK"},
                        {CBN_SELENDCANCEL, "CBN_SELENDCANCEL"},
                        {OVOCBN_RETURN, "OVOCBN_RETURN"},
                        {OVOCBN_UP, "OVOCBN_UP"},
                        {OVOCBN_DOWN, "OVOCBN_DOWN"}}};
    COVOComboBox combo;
    CButton other; ///< something else to give the focus to
};

class TypedScene : public ComboScene
{
public:
    void provoke() override { combo.GetWindow(GW_CHILD)->SendMessage(WM_CHAR, L'A', 1); }
};

template <UINT Key>
class KeyScene : public ComboScene
{
public:
    void provoke() override { type(Key); }
};

class EnteredScene : public ComboScene
{
public:
    EnteredScene() { other.SetFocus(); }
    void provoke() override { combo.SetFocus(); }
};

class LeftScene : public ComboScene
{
public:
    void provoke() override { other.SetFocus(); }
};

class ComboObserver : public COVOComboBoxDeletion
{
    void OnComboBoxDeleted(COVOComboBox*) override { Raising::here("OnComboBoxDeleted"); }
};

class DeletionScene : public CallOutScene
{
public:
    void provoke() override
    {
        auto* const combo = new COVOComboBox;
        combo->Create(kChild | CBS_DROPDOWN, CRect(0, 0, 150, 200), &parent, 1);
        combo->AutoDelete(true);
        combo->AutoDeleteNotify(&observer);
        combo->DestroyWindow();
    }
    void expectSound() override { provoke(); }

private:
    ComboObserver observer;
};

const std::vector<CallOut> kCombos{
    {"OnComboBoxDeleted", &make<DeletionScene>, kAsAHandler},
    {"CBN_EDITUPDATE", &make<TypedScene>, kAsAHandler},
    {"CBN_EDITCHANGE", &make<TypedScene>, kAsAHandler},
    {"CBN_SELCHANGE", &make<KeyScene<VK_RETURN>>, kAsAHandler},
    {"CBN_SELENDOK", &make<KeyScene<VK_RETURN>>, kAsAHandler},
    {"OVOCBN_RETURN", &make<KeyScene<VK_RETURN>>, kAsAHandler},
    {"CBN_SELCHANGE", &make<KeyScene<VK_ESCAPE>>, kAsAHandler},
    {"CBN_SELENDCANCEL", &make<KeyScene<VK_ESCAPE>>, kAsAHandler},
    {"OVOCBN_UP", &make<KeyScene<VK_UP>>, kAsAHandler},
    {"OVOCBN_DOWN", &make<KeyScene<VK_DOWN>>, kAsAHandler},
    {"CBN_SETFOCUS", &make<EnteredScene>, kAsAHandler},
    {"CBN_DROPDOWN", &make<EnteredScene>, kAsAHandler},
    {"CBN_CLOSEUP", &make<EnteredScene>, kAsAHandler},
    {"CBN_KILLFOCUS", &make<LeftScene>, kAsAHandler},
    {"CBN_SELENDOK", &make<LeftScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Combos, CallOuts, ::testing::ValuesIn(kCombos), &nameOfCallOut);
