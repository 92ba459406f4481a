#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

namespace ovo::testkit
{

/// A shown window that takes down the mouse and key messages it gets, to see what the robot really did.
class ProbeWindow : public CWnd
{
public:
    struct Seen
    {
        UINT message;
        WPARAM wParam;
        CPoint point; ///< client coordinates; of mouse messages only
    };

    ProbeWindow();
    ~ProbeWindow() override;

    /// Everything seen, moves included.
    const std::vector<Seen>& all() const { return m_seen; }
    void clear() { m_seen.clear(); }

    /// Those of one kind, in order.
    std::vector<Seen> all(UINT message) const;
    int count(UINT message) const { return static_cast<int>(all(message).size()); }

    /// Called for WM_APP, when set.
    std::function<void()> onPrivateMessage;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<Seen> m_seen;
};

} // namespace ovo::testkit
