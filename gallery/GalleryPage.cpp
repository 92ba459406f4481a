#include "GalleryPage.h"

#include "NotificationNames.h"

GalleryPage::GalleryPage(UINT templateId)
    : CDialog(templateId)
{
}

GalleryPage::~GalleryPage() = default;

bool GalleryPage::open(CWnd& parent, Log log)
{
    if (!Create(m_lpszTemplateName, &parent))
        return false;
    m_log = std::move(log);
    return true;
}

BOOL GalleryPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

void GalleryPage::log(const std::wstring& line) const
{
    if (m_log && !line.empty())
        m_log(line);
}

BOOL GalleryPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam)
        log(describeCommand(reinterpret_cast<HWND>(lParam), HIWORD(wParam)));
    return CDialog::OnCommand(wParam, lParam);
}

BOOL GalleryPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    log(describeNotify(*reinterpret_cast<const NMHDR*>(lParam)));
    return CDialog::OnNotify(wParam, lParam, result);
}
