#include <ovoui/update/UpdateTextBox.h>

#include <ovoui/frame/FontDC.h>

#include <ovouires/resource.h>

namespace ovoui::update
{

namespace
{

/// Whether all lines can be seen at once.
bool fits(CEdit& edit)
{
    CRect seen;
    edit.GetRect(&seen);
    TEXTMETRICW font{};
    return frame::FontDC(edit).dc().GetTextMetrics(&font) &&
           edit.GetLineCount() * font.tmHeight <= seen.Height();
}

} // namespace

void showText(CWnd& dialog, const std::wstring& text)
{
    CEdit edit;
    if (!edit.SubclassDlgItem(IDC_UPDATE_TEXT, &dialog))
        return;
    edit.SetWindowText(text.c_str());
    edit.ShowScrollBar(SB_VERT, !fits(edit));
    edit.UnsubclassWindow();
}

} // namespace ovoui::update
