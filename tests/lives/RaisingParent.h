/// A window that raises what is armed when its controls tell it something.
#pragma once

#include <afxwin.h>

#include <map>

/// Raises by the names of codes of WM_COMMAND and WM_NOTIFY, and of messages that controls send their parent.
class RaisingParent : public CWnd
{
public:
    using Names = std::map<UINT, const char*>;

    /// Creates the window and shows it. What is not among the `names` never raises.
    explicit RaisingParent(Names names);
    ~RaisingParent() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    const Names m_names;
};
