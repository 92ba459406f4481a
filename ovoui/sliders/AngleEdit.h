/// Not exported. A small edit control over an angle slider, for typing an angle.
#pragma once

#include <ovoui/sliders/core/AngleKeys.h>

#include <afxwin.h>

#include <functional>
#include <optional>

namespace ovoui::sliders
{

/// Enter and leaving it accept what was typed, Escape does not. It goes by itself.
class AngleEdit : public CEdit
{
public:
    /// Gets the angle that was typed; nothing when it is none or Escape was pressed. `byKey`: Enter or Escape
    /// has ended it, and the focus may be no one's. The window is gone then, and the call may destroy this
    /// object.
    using Done = std::function<void(std::optional<double> degrees, bool byKey)>;

    /// In the middle of `over`, with the first character that was typed.
    void open(CWnd& over, wchar_t first, Done done);

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    DECLARE_MESSAGE_MAP()

private:
    void finish(EditEnd end, bool byKey);

    Done m_done;
};

} // namespace ovoui::sliders
