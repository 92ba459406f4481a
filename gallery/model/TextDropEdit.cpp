#include "TextDropEdit.h"

#include "ProjectData.h"

TextDropEdit::TextDropEdit() = default;

TextDropEdit::~TextDropEdit() = default;

DROPEFFECT TextDropEdit::Target::OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys, CPoint point)
{
    return OnDragOver(window, data, keys, point);
}

DROPEFFECT TextDropEdit::Target::OnDragOver(CWnd*, COleDataObject* data, DWORD, CPoint)
{
    return data->IsDataAvailable(CF_UNICODETEXT) ? DROPEFFECT_COPY : DROPEFFECT_NONE;
}

BOOL TextDropEdit::Target::OnDrop(CWnd* window, COleDataObject* data, DROPEFFECT, CPoint)
{
    const std::optional<std::wstring> text = ProjectData::textIn(*data);
    if (!text)
        return FALSE;
    static_cast<CEdit*>(window)->ReplaceSel(text->c_str(), TRUE);
    return TRUE;
}
