/// Told when a combo box deletes itself.
#pragma once

#include <ovoui/export.h>

class COVOComboBox;

/// An observer of combo boxes that delete themselves (COVOComboBox::AutoDeleteNotify).
class OVOUI_API COVOComboBoxDeletion
{
public:
    COVOComboBoxDeletion() = default;
    COVOComboBoxDeletion(const COVOComboBoxDeletion&) = default;
    COVOComboBoxDeletion& operator=(const COVOComboBoxDeletion&) = default;

    /// The combo box has no window any more and will be deleted when this returns. It must not be deleted
    /// here.
    virtual void OnComboBoxDeleted(COVOComboBox* combo) = 0;

protected:
    ~COVOComboBoxDeletion() = default;
};
