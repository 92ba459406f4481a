// Items of a project on their way: dragged, or on the clipboard.
#pragma once

#include "ProjectItem.h"

#include <afxole.h>

#include <optional>
#include <string>
#include <vector>

namespace ProjectData
{

using Items = std::vector<ProjectItem::Pointer>;

/// Offers the items, and their names as text. Only this program understands the items themselves.
void offer(COleDataSource& source, const Items& items);

/// The items offered last, if `data` is what offered them.
const Items* itemsIn(COleDataObject& data);

/// The text in `data`; none when there is no text.
std::optional<std::wstring> textIn(COleDataObject& data);

bool isUsable(COleDataObject& data);

} // namespace ProjectData
