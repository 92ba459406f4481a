/// Not exported: many insertions, one layout and one repaint.
#pragma once

#include <ovoui/frame/RedrawHold.h>
#include <ovoui/tree/TreeState.h>

/// While it lives, the tree view neither draws nor works out where its items are.
class MultiTreeCtrl::LayoutHold
{
public:
    explicit LayoutHold(MultiTreeCtrl& tree);
    ~LayoutHold();
    LayoutHold(const LayoutHold&) = delete;
    LayoutHold& operator=(const LayoutHold&) = delete;

private:
    const std::shared_ptr<State> m_state;
    const bool m_holds; ///< not when the host holds it already
    ovoui::frame::RedrawHold m_redraw;
};
