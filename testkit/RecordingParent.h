#pragma once

#include "NotificationLog.h"

#include <functional>
#include <map>
#include <memory>

namespace ovo::testkit
{

/// A top-level window to put controls in. It takes down their notifications in order, and can answer them.
///
///     RecordingParent parent;
///     CButton button;
///     button.Create(L"Go", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 34), &parent, 7);
///     present(parent);
///     robot.click(Spot{button});
///     EXPECT_EQ(parent.log().count(BN_CLICKED), 1);
class RecordingParent : public CWnd
{
public:
    /// Creates the window with this `title`, hidden, with a client area of this size in pixels.
    explicit RecordingParent(CSize client = {600, 400}, const wchar_t* title = L"Recording parent");
    ~RecordingParent() override;

    /// What came so far, and what is taken down from now on.
    NotificationLog& log() { return m_log; }

    /// What the sender of a WM_NOTIFY code gets as the result from now on.
    void answer(UINT code, LRESULT result);

    /// `reply` is asked for the result of a WM_NOTIFY code from now on, with the original structure. It may put
    /// another one in its place.
    void answer(UINT code, std::function<LRESULT(NMHDR*)> reply);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    NotificationLog m_log;
    std::map<UINT, std::shared_ptr<std::function<LRESULT(NMHDR*)>>> m_replies;
};

} // namespace ovo::testkit
