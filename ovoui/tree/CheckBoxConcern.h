/// Not exported: the check boxes of the nodes that have one.
#pragma once

#include <ovoui/tree/Concern.h>

#include <optional>

class MultiTreeCtrl::CheckBoxConcern final : public Concern
{
public:
    using Concern::Concern;

    bool has(HTREEITEM item) const;
    /// The state image of a node's item and the mask for it; both 0 where no boxes are shown. Asks the node.
    TVITEM stateImage(const Node& node) const;
    /// The user clicks the box of an item.
    void toggle(HTREEITEM item);
    /// The same by a key: all selected boxes follow that of the caret, if it is among them.
    void toggleCaret();

    /// Shows the boxes, or takes them away.
    void extrasChange() override;
    void windowMade() override;
    void ends(const Message& message, LRESULT result) override;

private:
    void takeImages();
    void makeImages();
    void setStateImages(HIMAGELIST images) const;
    void showAll();
    void show(HTREEITEM item) const;
    void set(const std::vector<HTREEITEM>& items, bool on);
    /// What a box is to become; nothing when the node raises an error instead of an answer.
    std::optional<bool> wanted(HTREEITEM item) const;
    static Checkable* checkable(const Node* node);

    bool m_on = false;
    CImageList m_images;
    HIMAGELIST m_hostsImages = nullptr; ///< the state images that were there before
};
