#include <ovoui/frame/RaiseLater.h>

#include <ovoui/frame/Exceptions.h>

#include <afxwin.h>

#include <memory>

namespace
{

constexpr UINT kRaise = WM_APP;

/// A window without a place on the screen, until its message comes.
class Messenger : public CWnd
{
public:
    explicit Messenger(const std::exception_ptr& raised)
        : m_raised(raised)
    {
    }
    ~Messenger() override { DestroyWindow(); }

    static void send(const std::exception_ptr& raised)
    {
        const auto messenger = std::make_shared<Messenger>(raised);
        if (messenger->CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr) &&
            messenger->PostMessage(kRaise))
            messenger->m_self = messenger;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != kRaise)
            return CWnd::WindowProc(message, wParam, lParam);
        const std::exception_ptr raised = m_raised;
        std::shared_ptr<Messenger>(std::move(m_self)).reset(); // the object is gone
        std::rethrow_exception(raised);
    }

private:
    const std::exception_ptr m_raised;
    std::shared_ptr<Messenger> m_self; // while the message is on its way
};

} // namespace

void ovoui::frame::raiseLater(const std::exception_ptr& raised) noexcept
{
    if (raised)
        dropping([&] { Messenger::send(raised); });
}
