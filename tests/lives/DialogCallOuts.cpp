// Call-outs of the base of modal dialogs, which are the handlers of what the host derives from it, and of
// message boxes.
#include "CallOutScene.h"

#include <ovoui/frame/MessageBox.h>
#include <ovoui/frame/ModalDialog.h>
#include <ovouires/resource.h>

#include <utility>

namespace
{

class RaisingDialog : public COVOModalDialog
{
public:
    using COVOModalDialog::COVOModalDialog;

    int accepted = 0;

private:
    void OnOK() override
    {
        Raising::here("OnOK");
        ++accepted;
    }
};

/// Open without a loop of its own, so that what is raised comes to the test.
class DialogScene : public CallOutScene
{
public:
    DialogScene() { dialog.Create(IDD_COLOUR_PALETTE, &parent); }
    void provoke() override { dialog.SendMessage(WM_COMMAND, IDOK); }
    void expectSound() override
    {
        EXPECT_EQ(dialog.accepted, 0);
        provoke();
        EXPECT_EQ(dialog.accepted, 1);
    }

private:
    RaisingDialog dialog{IDD_COLOUR_PALETTE, &parent};
};

/// Presses Help in the box that it shows, and then Cancel, each when the box has nothing else to do.
class HelpingOwner : public CWnd
{
public:
    HelpingOwner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 200), nullptr, 0);
    }
    ~HelpingOwner() override { DestroyWindow(); }

    int ask()
    {
        m_next = IDHELP;
        return OVOMessageBox(m_hWnd, L"The message.", L"Box", MB_OKCANCEL | MB_HELP, nullptr, 0);
    }

    int helped = 0;

private:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE)
            ::PostMessageW(reinterpret_cast<HWND>(lParam), WM_COMMAND, std::exchange(m_next, IDCANCEL), 0);
        if (message == m_help) {
            Raising::here("commdlg_help");
            ++helped;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

    const UINT m_help = ::RegisterWindowMessageW(L"commdlg_help");
    WPARAM m_next = IDHELP;
};

class MessageBoxScene : public CallOutScene
{
public:
    void provoke() override { answer = owner.ask(); }
    void expectSound() override
    {
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(owner.helped, 0);
        provoke();
        EXPECT_EQ(answer, IDCANCEL);
        EXPECT_EQ(owner.helped, 1);
    }

private:
    HelpingOwner owner;
    int answer = 0;
};

const std::vector<CallOut> kDialogs{
    {"OnOK", &make<DialogScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
    {"commdlg_help", &make<MessageBoxScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialogs, CallOuts, ::testing::ValuesIn(kDialogs), &nameOfCallOut);
