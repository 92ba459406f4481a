#include "Shooting.h"

#include "CommandLine.h"
#include "GalleryFrame.h"
#include "PageTable.h"

#include <algorithm>

namespace
{

bool shootPage(GalleryFrame& frame, const PageEntry& page, const std::wstring& folder)
{
    const std::wstring base = folder + L"\\" + page.name;
    bool good = frame.shoot(page, {}, base + L".png");
    // Taken now, since each picture opens the page anew.
    const std::vector<std::wstring> poses = frame.page().poses();
    for (const std::wstring& pose : poses)
        good = frame.shoot(page, pose, base + L"-" + pose + L".png") && good;
    return good;
}

} // namespace

bool takePictures(GalleryFrame& frame, const CommandLine& line)
{
    if (!line.shot.empty())
        return frame.shoot(*findPage(line.page), line.pose, line.shot);
    bool good = true;
    for (const PageEntry& page : pageTable())
        if (line.page.empty() || line.page == page.name)
            good = shootPage(frame, page, line.shotAll) && good;
    return good;
}
