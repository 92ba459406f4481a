/// Not exported: the band that the mouse draws over rows to select them. The rules are in core/BandFrame.h.
#pragma once

#include <ovoui/tree/Concern.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/core/BandFrame.h>

#include <optional>

class MultiTreeCtrl::Band final : public Concern
{
public:
    using Concern::Concern;

    /// Follows the mouse from a press on until the button goes up. Escape, and the loss of the mouse, bring
    /// the selection back. With Ctrl the band changes over what it goes over, else it replaces the selection.
    /// The parent hears of the whole once.
    void select(CPoint press, bool ctrl);

    void ends(const Message& message, LRESULT result) override;

private:
    struct Drawing;

    bool follow(Drawing& drawing);
    void show(Drawing& drawing, CPoint pointer);
    void scroll(Drawing& drawing);
    void finish(const Drawing& drawing);
    std::vector<HTREEITEM> wantedBy(const Drawing& drawing, HTREEITEM row) const;
    void setFrame(const std::optional<CRect>& frame);
    void invalidate(const CRect& frame) const;
    ovoui::tree::ScrolledBy scrolledBy() const;
    HTREEITEM rowAt(CPoint point) const;

    std::optional<CRect> m_frame; ///< what is drawn now, in client coordinates
};
