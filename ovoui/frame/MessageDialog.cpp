#include <ovoui/frame/MessageDialog.h>

#include <ovocor/ovocor.h>
#include <ovoui/frame/MessageDialogBox.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/ProfileSection.h>
#include <ovouires/resource.h>

#include <algorithm>

namespace
{

constexpr unsigned kLongestCount = 24 * 60 * 60;

ovoui::frame::ProfileSection answers()
{
    return ovoui::frame::ProfileSection(L"answers");
}

} // namespace

COVOMessageDialog::COVOMessageDialog(HWND owner, std::wstring text, std::wstring caption, UINT type)
    : m_owner(owner)
    , m_text(std::move(text))
    , m_caption(std::move(caption))
    , m_type(type)
{
}

void COVOMessageDialog::AddButton(int id, std::wstring label)
{
    m_buttons.push_back({id, std::move(label)});
}

void COVOMessageDialog::SetDetails(std::wstring text)
{
    m_details = std::move(text);
}

void COVOMessageDialog::OfferNotToAsk(std::wstring entry, std::wstring label)
{
    m_entry = std::move(entry);
    m_checkLabel = label.empty() ? ovoui::resourceString(IDS_MESSAGE_NOT_AGAIN) : std::move(label);
}

void COVOMessageDialog::PressDefaultAfter(unsigned seconds)
{
    m_seconds = std::min(seconds, kLongestCount);
}

int COVOMessageDialog::DoModal() const
{
    const COVOMessageDialog own = *this; // the host may delete this object while the box is open
    COVOMessageDialogBox box(own);
    const int known = own.m_entry.empty() ? 0 : answers().number(own.m_entry);
    if (box.mayBeKept(known))
        return known;
    const int answer = static_cast<int>(box.DoModal());
    if (box.keepsAnswer() && box.mayBeKept(answer))
        answers().write(own.m_entry, answer);
    return answer;
}

void COVOMessageDialog::ForgetAnswer(const std::wstring& entry)
{
    answers().remove(entry);
}

void COVOMessageDialog::ForgetAnswers()
{
    answers().removeAll();
}
