// The frame inside the docking page: a child window with bars of its own.
#pragma once

#include "model/DockedShape.h"

#include <ovoui/images/AlphaImageList.h>
#include <ovoui/toolbar/VantorToolBar.h>
#include <ovoui/toolbar/VantorToolWnd.h>

#include <afxext.h>

#include <array>
#include <functional>
#include <string>

/// Three toolbars and a tool window around a shape. It deletes itself with its window.
class DockingFrame : public CFrameWnd
{
public:
    using Log = std::function<void(const std::wstring& line)>;

    /// Null on failure.
    static DockingFrame* make(CWnd& parent, UINT id, Log log);

    void save();    ///< Writes the arrangement to the profile.
    void restore(); ///< Brings back what was saved.
    /// One toolbar beside the others at the top, the others at the sides, all in one row.
    void arrangeAtSides();
    void arrangeInOneRow();
    void makeFloat(); ///< A toolbar in two rows of buttons, and the tool window.

    CControlBar& bar(int index); ///< The toolbars, then the tool window.
    static constexpr int kBars = 4;

protected:
    afx_msg void OnTool(UINT id);
    afx_msg void OnUpdateTool(CCmdUI* ui);
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnTextChanged();
    afx_msg void OnFilled();
    DECLARE_MESSAGE_MAP()

    void PostNcDestroy() override;

private:
    explicit DockingFrame(Log log);

    bool createParts();
    bool createBar(CToolBar& bar, UINT id, LPCTSTR title, UINT firstCommand, int count);

    Log m_log;
    CAlphaImageList m_images;
    std::array<CVantorToolBar, 3> m_bars;
    CVantorToolWnd m_palette;
    DockedShape m_shape;
};
