#include <ovoui/files/AskedFiles.h>

namespace ovoui
{

void begin(CFileDialog& dialog, const Beginning& beginning)
{
    OPENFILENAME& record = dialog.GetOFN();
    if (beginning.type > 0)
        record.nFilterIndex = static_cast<DWORD>(beginning.type);
    if (!beginning.folder.empty())
        record.lpstrInitialDir = beginning.folder.c_str();
    if (!beginning.title.empty())
        record.lpstrTitle = beginning.title.c_str();
}

std::vector<std::wstring> chosenFiles(const CFileDialog& dialog)
{
    std::vector<std::wstring> files;
    for (POSITION position = dialog.GetStartPosition(); position;)
        files.emplace_back(dialog.GetNextPathName(position).GetString());
    return files;
}

} // namespace ovoui
