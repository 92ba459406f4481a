// Which message a member of a control's wrapper sends: for messages that not every system's control answers.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <iomanip>
#include <ostream>
#include <vector>

/// A message as it reaches a control.
struct Sent
{
    UINT message;
    WPARAM wParam = 0;
    LPARAM lParam = 0;

    bool operator==(const Sent&) const = default;
};

inline void PrintTo(const Sent& sent, std::ostream* out)
{
    *out << std::hex << "message 0x" << sent.message << ", wParam 0x" << sent.wParam << ", lParam 0x"
         << sent.lParam << std::dec;
}

/// A control that takes down what it is sent. While it listens, nothing reaches the real control: `answer` is
/// the result of every message.
template <class Control>
class MessageSpy : public Control
{
public:
    LRESULT answer = 0;

    /// The messages that a call sends.
    template <class Call>
    std::vector<Sent> allOf(Call call)
    {
        m_listens = true;
        m_sent.clear();
        call(static_cast<Control&>(*this));
        m_listens = false;
        return m_sent;
    }

    /// The one message that a call sends; message 0 when there is not exactly one.
    template <class Call>
    Sent of(Call call)
    {
        const std::vector<Sent> sent = allOf(call);
        return sent.size() == 1 ? sent.front() : Sent{0};
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (!m_listens)
            return Control::WindowProc(message, wParam, lParam);
        m_sent.push_back({message, wParam, lParam});
        return answer;
    }

private:
    bool m_listens = false;
    std::vector<Sent> m_sent;
};

template <class Pointer>
LPARAM asLParam(Pointer pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

template <class Pointer>
WPARAM asWParam(Pointer pointer)
{
    return reinterpret_cast<WPARAM>(pointer);
}
