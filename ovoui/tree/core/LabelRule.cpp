#include <ovoui/tree/core/LabelRule.h>

namespace ovoui::tree
{

bool isRenamed(std::wstring_view offered, std::wstring_view typed)
{
    return typed != offered;
}

AfterRename afterRename(std::wstring_view before, std::wstring_view after, std::wstring_view typed)
{
    if (after == before)
        return AfterRename::EditAgain;
    return after == typed ? AfterRename::TakeTyped : AfterRename::ShowNodes;
}

ToBeDeleted toBeDeleted(const DeletingMessage& message)
{
    if (message.destroysTree)
        return ToBeDeleted::Everything;
    if (message.deletes)
        return message.all ? ToBeDeleted::Everything : ToBeDeleted::Item;
    if (message.empties)
        return message.all ? ToBeDeleted::Everything : ToBeDeleted::Children;
    return ToBeDeleted::Nothing;
}

bool closesEditor(ToBeDeleted what, bool isItem, bool isBelow)
{
    switch (what) {
    case ToBeDeleted::Nothing:
        return false;
    case ToBeDeleted::Everything:
        return true;
    case ToBeDeleted::Item:
        return isItem || isBelow;
    case ToBeDeleted::Children:
        return isBelow;
    }
    return false;
}

} // namespace ovoui::tree
