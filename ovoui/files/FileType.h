/// An entry of the list of file types in a dialog, for example {L"Pictures", {L"*.png", L"*.jpg"}}.
#pragma once

#include <string>
#include <vector>

struct FileType
{
    std::wstring name;
    std::vector<std::wstring> patterns;
};
