#include <ovoui/frame/ProgressBox.h>

#include <ovoui/frame/ProgressBoxDlg.h>

#include <memory>

COVOProgressBox::COVOProgressBox(HWND owner, const std::wstring& text, const std::wstring& caption)
{
    auto dialog = std::make_unique<COVOProgressBoxDlg>(owner, text, caption);
    dialog->open(); // may throw, which ends the dialog
    m_dialog = dialog.release();
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
