// Call-outs of the toolbar and its flyouts.
#include "CallOutScene.h"
#include "RaisingParent.h"

#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/VantorToolBar.h>
#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <afxpriv.h>

using namespace ovo::testkit;

namespace
{

void insertButton(CVantorToolBar& bar, int command)
{
    TBBUTTON button{};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    bar.InsertButton(0, &button);
}

class BarScene : public CallOutScene
{
public:
    BarScene()
    {
        bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP | CBRS_TOOLTIPS);
        insertButton(bar, kEdit);
        edit.Create(kChild, CRect(0, 0, 60, 20), &bar, kEdit);
        bar.SetControlCallback([](CVantorToolBar*, UINT, UINT, void*) -> LRESULT {
            Raising::here("ControlCallback");
            return 0;
        });
    }
    void provoke() override { edit.SetWindowText(L"text"); }
    void expectSound() override
    {
        provoke();
        EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 1);
    }

private:
    static constexpr UINT kEdit = 100;

    CVantorToolBar bar;
    CEdit edit;
};

/// A flyout whose entry is clicked.
class FlyoutScene : public CallOutScene
{
public:
    FlyoutScene()
    {
        bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP);
        ovoui::toolbar::FlyoutRecord record;
        record.hasFlyout = true;
        record.bitmapSize = 16;
        record.commands = {kFirst, kSecond};
        record.bitmapIds = {0, 0};
        record.images = {0, 0};
        record.names = {Quark(L"first"), Quark(L"second")};
        flyout->create(bar, record, true);
        flyout->whenChosen = [this](const CFlyoutToolbar::Entry& entry) {
            Raising::here("whenChosen");
            chosen = entry.command;
        };
        flyout->show();
    }
    void provoke() override
    {
        flyout->SendMessage(WM_COMMAND, kSecond);
        GuiThread::settle(); // it posts to itself what it tells
    }
    void expectSound() override
    {
        EXPECT_EQ(chosen, 0);
        provoke();
        EXPECT_EQ(chosen, kSecond);
    }

private:
    static constexpr int kFirst = 100;
    static constexpr int kSecond = 101;

    CVantorToolBar bar;
    const std::shared_ptr<CFlyoutToolbar> flyout = std::make_shared<CFlyoutToolbar>();
    int chosen = 0;
};

class RaisingBar : public CVantorToolBar
{
    void DrawNCGripper(CDC* dc, const CRect& rect) override
    {
        Raising::here("DrawNCGripper");
        CVantorToolBar::DrawNCGripper(dc, rect);
    }
};

class GripperScene : public CallOutScene
{
public:
    GripperScene() { bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP | CBRS_GRIPPER); }
    void provoke() override { bar.SendMessage(WM_NCPAINT, 1); }
    void expectSound() override { provoke(); }

private:
    RaisingBar bar;
};

/// Is asked by the idle update how its command stands.
class RaisingFrame : public CFrameWnd
{
public:
    RaisingFrame() { Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200)); }

    static constexpr UINT kCommand = 100;

private:
    void PostNcDestroy() override {} // a member, which is not to delete itself
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (id != kCommand || static_cast<UINT>(code) != CN_UPDATE_COMMAND_UI || !extra)
            return CFrameWnd::OnCmdMsg(id, code, extra, info);
        Raising::here("ON_UPDATE_COMMAND_UI");
        static_cast<CCmdUI*>(extra)->Enable(FALSE);
        return TRUE;
    }
};

class UpdateScene : public CallOutScene
{
public:
    UpdateScene()
    {
        bar.CreateEx(&frame, TBSTYLE_FLAT, kChild | CBRS_TOP);
        insertButton(bar, RaisingFrame::kCommand);
    }
    ~UpdateScene() override { frame.DestroyWindow(); }
    void provoke() override { bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE); }
    void expectSound() override
    {
        provoke();
        EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(RaisingFrame::kCommand));
    }

private:
    RaisingFrame frame;
    CVantorToolBar bar;
};

/// A bar with a control that its owner draws and measures, or else the bar.
class DrawnItemScene : public CallOutScene
{
public:
    DrawnItemScene()
    {
        bar.CreateEx(&owner, TBSTYLE_FLAT, kChild | CBRS_TOP);
        combo = ::CreateWindowExW(0, L"COMBOBOX", nullptr,
                                  kChild | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0, 0, 100,
                                  120, bar, reinterpret_cast<HMENU>(kCombo), nullptr, nullptr);
        ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"text"));
    }
    void provoke() override { draw(); }
    void expectSound() override { EXPECT_LT(draw().count(kGround), kWidth * kHeight) << "by the bar"; }

protected:
    static constexpr UINT_PTR kCombo = 100;
    static constexpr int kWidth = 80;
    static constexpr int kHeight = 20;
    static constexpr COLORREF kGround = RGB(1, 2, 3);

    Picture draw()
    {
        Picture picture(kWidth, kHeight, kGround);
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = kCombo;
        item.hwndItem = combo;
        item.hDC = picture.dc();
        item.rcItem = CRect(0, 0, kWidth, kHeight);
        bar.SendMessage(WM_DRAWITEM, kCombo, reinterpret_cast<LPARAM>(&item));
        return picture;
    }

    RaisingParent owner{{{WM_DRAWITEM, "WM_DRAWITEM"}, {WM_MEASUREITEM, "WM_MEASUREITEM"}}};
    CVantorToolBar bar;
    HWND combo = nullptr; ///< without an object, which would draw itself
};

class MeasuredItemScene : public DrawnItemScene
{
public:
    void provoke() override { measure(); }
    void expectSound() override { EXPECT_GT(measure(), 0u) << "by the bar"; }

private:
    UINT measure()
    {
        MEASUREITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = kCombo;
        bar.SendMessage(WM_MEASUREITEM, kCombo, reinterpret_cast<LPARAM>(&item));
        return item.itemHeight;
    }
};

const std::vector<CallOut> kBars{
    {"ControlCallback", &make<BarScene>, kAsAHandler},
    {"whenChosen", &make<FlyoutScene>, kAsAHandler},
    {"DrawNCGripper", &make<GripperScene>, kAsAHandler},
    {"ON_UPDATE_COMMAND_UI", &make<UpdateScene>, kAsAHandler},
    {"WM_DRAWITEM", &make<DrawnItemScene>, kAsAHandler},
    {"WM_MEASUREITEM", &make<MeasuredItemScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Bars, CallOuts, ::testing::ValuesIn(kBars), &nameOfCallOut);
