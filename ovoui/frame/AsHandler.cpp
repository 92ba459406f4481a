#include <ovoui/frame/AsHandler.h>

namespace
{

/// Raises, within the framework's window procedure, what was raised outside of it.
class Failed : public CWnd
{
public:
    explicit Failed(const std::exception_ptr& raised)
        : m_raised(raised)
    {
    }

protected:
    LRESULT WindowProc(UINT, WPARAM, LPARAM) override { std::rethrow_exception(m_raised); }

private:
    const std::exception_ptr m_raised;
};

} // namespace

LRESULT ovoui::frame::answerOfFailure(const std::exception_ptr& raised, HWND window, UINT message,
                                      WPARAM wParam, LPARAM lParam)
{
    Failed handler(raised);
    return ::AfxCallWndProc(&handler, window, message, wParam, lParam);
}
