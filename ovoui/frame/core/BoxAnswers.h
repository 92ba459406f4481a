/// Which button answers a message box, and which answers are kept. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/MessageBoxStyle.h>

#include <vector>

namespace ovoui::frame
{

bool hasButton(const MessageBoxButtons& buttons, int id);

/// The answer of the close box: the first of Cancel, No, Ignore and OK that the box has a button for; Cancel
/// when it has none of them.
int closeAnswer(const MessageBoxButtons& buttons);

/// Whether WM_COMMAND with this code is the click on a button that answers the box. Help does not.
bool isAnswer(const MessageBoxButtons& buttons, int id, unsigned code);

/// Whether an answer may be kept, and given later without showing the box. Cancelling is none, and the box
/// must have a button for it.
bool mayBeKept(const MessageBoxButtons& buttons, int answer);

/// The positions of the buttons in the order in which Tab goes through them: Help is the first.
std::vector<int> tabOrder(const MessageBoxButtons& buttons);

} // namespace ovoui::frame
