// Call-outs of the base of modal dialogs: the handlers of what the host derives from it.
#include "CallOutScene.h"

#include <ovoui/frame/ModalDialog.h>
#include <ovouires/resource.h>

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

const std::vector<CallOut> kDialogs{
    {"OnOK", &make<DialogScene>, {Outcome::Shown, Outcome::Shown, Outcome::Passes}},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialogs, CallOuts, ::testing::ValuesIn(kDialogs), &nameOfCallOut);
