/// Check boxes in front of items.
#include <ovoui/tree/MultiTreeCtrl.h> // which includes this file at its end

#ifndef OVOUI_TREE_TREECHECKABLE_H
#define OVOUI_TREE_TREECHECKABLE_H

/// A node class derives from this one beside Node to have a check box in trees that show them
/// (MultiTreeCtrl::CheckBoxes). The node keeps what is checked; the item shows it when it is inserted and at
/// every updateUI.
///
///     class Layer : public MultiTreeCtrl::Node, public MultiTreeCtrl::Checkable
///     {
///         Check check() const override { return m_visible ? Check::On : Check::Off; }
///         void setCheck(MultiTreeCtrl&, bool on) override { m_visible = on; }
///
/// Both operations may do to the tree what those of a node may do.
class OVOUI_API MultiTreeCtrl::Checkable
{
public:
    /// What a box shows.
    enum class Check
    {
        None, ///< no box at the moment
        Off,  ///< an empty box
        On,   ///< a checked one
        Mixed ///< some of what the item stands for
    };

    virtual ~Checkable();

    /// What the box shows now.
    virtual Check check() const = 0;
    /// The user of `tree` wants the box checked (`on`), or not. The item shows check() afterwards, whatever
    /// became of that. What this raises is reported.
    virtual void setCheck(MultiTreeCtrl& tree, bool on) = 0;
};

#endif
