// Toolbars with flyouts: commands from lists, shapes from a resource, an edit and a combo box in a bar.
#pragma once

#include "GalleryPage.h"

#include <ovoui/toolbar/VantorToolBar.h>

/// A bar that can show its flyouts without the mouse, for pictures.
class ShownBar : public CVantorToolBar
{
public:
    /// Opens the flyout of a button and rests on an entry.
    void open(int button, int entry);
    /// The tip of that entry.
    void showTip();
};

class ToolBarPage : public GalleryPage
{
public:
    ToolBarPage();
    ~ToolBarPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnCommandChosen(UINT id);
    afx_msg void OnUpdateCommand(CCmdUI* ui);
    afx_msg LRESULT OnBarDoubleClicked(WPARAM id, LPARAM);
    // what bars do besides
    afx_msg void OnMarks();
    afx_msg void OnHold();
    afx_msg void OnNames();
    afx_msg void OnKeyboard();
    afx_msg void OnSave();
    afx_msg void OnLoad();
    DECLARE_MESSAGE_MAP()

private:
    bool createBar(ShownBar& bar, DWORD side, int placeholder);
    void fillCommands(ShownBar& bar, int count);
    void fillShapes(ShownBar& bar);
    void addControls();
    template <class Do>
    void forEachBar(UINT box, Do change);
    void showAtScreenEdge();
    void nameParts();
    void addTag(int number, CPoint place);
    static LRESULT onControl(CVantorToolBar* bar, UINT code, UINT id, void*);

    ShownBar m_commands; ///< above: lists of commands, an edit and a combo box
    ShownBar m_shapes;   ///< at the left: buttons of a toolbar resource
    ShownBar m_mirrored; ///< right to left
    CEdit m_edit;
    CComboBox m_combo;
    std::vector<std::unique_ptr<CStatic>> m_tags; ///< numbers of parts, for a picture
};
