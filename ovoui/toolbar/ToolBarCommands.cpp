#include <ovoui/toolbar/ToolBarCommands.h>

#include <ovoui/frame/Resolution.h>

namespace
{

void attachFlyout(CVantorToolBar& bar, int button, const std::vector<ToolBarCommand>& flyout, int strip,
                  int imageSize)
{
    std::vector<int> commands, images;
    for (const ToolBarCommand& entry : flyout) {
        commands.push_back(static_cast<int>(entry.command));
        images.push_back(entry.image);
    }
    // An entry without a strip of its own would leave the button its image.
    const std::vector<int> strips(flyout.size(), strip);
    CClientDC dc(&bar);
    bar.AttachBar(button, ovoui::frame::scaledTo(dc, imageSize), commands, strips, images, {}, false, false);
}

} // namespace

bool setCommands(CVantorToolBar& bar, const std::vector<ToolBarEntry>& entries,
                 const std::vector<CVantorToolBar::Strip>& strips, int imageSize)
{
    bar.DetachAllBars();
    std::vector<UINT> commands;
    for (const ToolBarEntry& entry : entries)
        commands.push_back(entry.command);
    if (!bar.SetButtons(commands.data(), static_cast<int>(commands.size())))
        return false;
    bar.UseStrips(strips, imageSize);
    const int strip = strips.empty() ? 0 : static_cast<int>(strips.front().bitmapId);
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        const ToolBarEntry& entry = entries[i];
        if (entry.command != ID_SEPARATOR)
            bar.SetButtonInfo(i, entry.command, TBBS_BUTTON, entry.image);
        if (!entry.flyout.empty())
            attachFlyout(bar, i, entry.flyout, strip, imageSize);
    }
    return true;
}
