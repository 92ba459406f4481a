/// An entry of the list of file types in a dialog, for example {L"Pictures", {L"*.png", L"*.jpg"}}.
#pragma once

#include <string>
#include <vector>

/// An entry of the list of file types in a dialog.
struct FileType
{
    std::wstring name;                  ///< what the user reads
    std::vector<std::wstring> patterns; ///< such as *.png
};
