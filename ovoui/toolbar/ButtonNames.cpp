#include <ovoui/toolbar/ButtonNames.h>

#include <ovoui/toolbar/BarButtons.h>

namespace ovoui::toolbar
{

namespace
{

std::wstring partOfString(int command, int part)
{
    CString full;
    CString text;
    if (command == 0 || !full.LoadString(static_cast<UINT>(command)) ||
        !AfxExtractSubString(text, full, part))
        return {};
    return text.GetString();
}

} // namespace

std::wstring tipOfCommand(int command)
{
    return partOfString(command, 1);
}

std::wstring promptOfCommand(int command)
{
    return partOfString(command, 0);
}

std::wstring nameOfButton(const CToolBar& bar, int index)
{
    TBBUTTON button;
    if (!readButton(bar.m_hWnd, index, button))
        return {};
    const CString text = bar.GetButtonText(index);
    return text.IsEmpty() ? tipOfCommand(button.idCommand) : text.GetString();
}

} // namespace ovoui::toolbar
