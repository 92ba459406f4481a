/// A child of a window that goes with its object.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace support
{

/// Raises an exception as it goes.
class RaisingChild : public CStatic
{
public:
    /// A child of `parent` that is not shown.
    bool createIn(CWnd& parent) { return Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &parent) != FALSE; }

    /// Expects that it has gone, and that what it raised came out of the message loop and of nothing before
    /// it.
    void expectRaisedInLoop() const
    {
        EXPECT_EQ(m_hWnd, nullptr);
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0); // the loop has something to do
        EXPECT_THROW(AfxPumpMessage(), std::runtime_error);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY)
            throw std::runtime_error("the child goes");
        return CStatic::WindowProc(message, wParam, lParam);
    }
};

} // namespace support
