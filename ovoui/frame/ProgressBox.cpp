#include <ovoui/frame/ProgressBox.h>

#include <ovoui/frame/ProgressBoxDlg.h>

COVOProgressBox::COVOProgressBox(HWND owner, const std::wstring& text, const std::wstring& caption)
    : m_dialog(new COVOProgressBoxDlg(owner, text, caption))
{
    m_dialog->open();
}

COVOProgressBox::~COVOProgressBox()
{
    m_dialog->close();
    delete m_dialog;
}

bool COVOProgressBox::Advance(ULONGLONG done, ULONGLONG total)
{
    m_dialog->show(done, total);
    COVOProgressBoxDlg* const dialog = m_dialog;
    return dialog->letMessagesThrough() && !dialog->isCancelled();
}

void COVOProgressBox::SetText(const std::wstring& text)
{
    m_dialog->setText(text);
}

bool COVOProgressBox::IsCancelled() const
{
    return m_dialog->isCancelled();
}
