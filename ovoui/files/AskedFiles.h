/// Not exported: a file dialog of the framework, asked once.
#pragma once

#include <ovoui/files/core/DialogFlags.h>

#include <afxdlgs.h>

#include <string>
#include <vector>

namespace ovoui
{

/// How a dialog begins. Its texts must stay while the dialog is shown; what is empty is left to the system.
struct Beginning
{
    std::wstring title;
    std::wstring folder; ///< that exists
    int type = 0;        ///< the number of the file type that is chosen, from 1
};

void begin(CFileDialog& dialog, const Beginning& beginning);

/// The files that were chosen, in the dialog's order.
std::vector<std::wstring> chosenFiles(const CFileDialog& dialog);

} // namespace ovoui
