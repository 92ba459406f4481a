// CVantorToolBar: which buttons carry a flyout.
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;

void CVantorToolBar::AttachBar(int button, int toolbarId, int bitmapSize,
                               const std::vector<int>& buttonIndices, bool styleFlag)
{
    if (!hasButton(button))
        return;
    FlyoutRecord record;
    record.hasFlyout = true;
    record.captioned = styleFlag;
    record.toolbarId = toolbarId;
    record.bitmapSize = bitmapSize;
    record.buttonIndices = buttonIndices;
    m_state->records.set(button, std::move(record));
    AddBitmap(toolbarId, bitmapSize);
}

void CVantorToolBar::AttachBar(int button, int bitmapSize, const std::vector<int>& commands,
                               const std::vector<int>& bitmapIds, const std::vector<int>& images,
                               const std::vector<Quark>& names, bool styleFlag, bool shiftImages)
{
    if (!hasButton(button))
        return;
    FlyoutRecord record;
    record.hasFlyout = true;
    record.captioned = styleFlag;
    record.bitmapSize = bitmapSize;
    record.commands = commands;
    record.bitmapIds = bitmapIds;
    record.images = images;
    record.names = names;
    record.imageList = reinterpret_cast<void*>(SendMessage(TB_GETIMAGELIST));
    if (!record.imageList)
        for (std::size_t i = 0; i < commands.size(); ++i)
            AddBitmap(i < bitmapIds.size() ? bitmapIds[i] : 0, bitmapSize);
    else if (shiftImages)
        countFromStrips(record, [this](int strip) { return m_state->offsetOf(strip); });
    m_state->records.set(button, std::move(record));
}

void CVantorToolBar::DetachBar(int button)
{
    m_state->records.clear(button);
}

void CVantorToolBar::DetachAllBars()
{
    m_state->records.clearAll();
}

void CVantorToolBar::CopyBar(int button, const CVantorToolBar* from, int fromButton)
{
    if (!from || !hasButton(button))
        return;
    const FlyoutRecord* const record = from->m_state->records.find(fromButton);
    m_state->records.set(button, record ? FlyoutRecord(*record) : FlyoutRecord{});
}

bool CVantorToolBar::HasFlyout(int button) const
{
    return m_state->records.find(button) != nullptr;
}

bool CVantorToolBar::GetBarCommands(int button, std::vector<int>& commands) const
{
    const FlyoutRecord* const record = m_state->records.find(button);
    if (!record)
        return false;
    commands = record->commands;
    return true;
}

void CVantorToolBar::UpdateBarBitmapSize(int size)
{
    m_state->records.setBitmapSize(size);
}
