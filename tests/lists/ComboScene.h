/// What the combo box's tests share: a combo box in a parent that hears its notifications as a host does.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>

#include <ovoui/lists/ComboBox.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Notifications by name: "SELENDOK", "RETURN".
using Heard = std::vector<std::string>;

std::string nameOfNotification(int code);

/// Hears what comes through to a handler of the host: after the control itself has handled it.
class ComboParent : public CWnd
{
public:
    ComboParent();
    ~ComboParent() override;

    Heard heard;
    std::function<void(const std::string&)> hearing; ///< called with each

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
};

class ComboScene
{
public:
    explicit ComboScene(std::initializer_list<const wchar_t*> items, DWORD style = CBS_DROPDOWN);
    ~ComboScene();

    void show();
    /// Gives the combo box the focus, with an empty field and nothing heard.
    void enter();
    /// As above, with an item selected before the focus comes.
    void enterWith(int selection);

    HWND edit() const;
    HWND listBox() const;
    std::wstring text() const;
    void setText(const std::wstring& text) { combo.SetWindowText(text.c_str()); }
    /// Selection of the edit field.
    std::pair<int, int> marked() const;
    /// What was heard since the last call.
    Heard take();

    ComboParent parent;
    COVOComboBox combo;
    CButton button;
    ovo::testkit::Robot robot;
};
