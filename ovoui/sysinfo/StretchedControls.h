/// Not exported. The controls of a dialog that the user can make larger.
#pragma once

#include <ovoui/sysinfo/core/StretchRule.h>

#include <afxwin.h>

#include <vector>

namespace ovoui::sysinfo
{

/// Gives the room that a dialog gains to its controls. The dialog is never smaller than it was first.
class StretchedControls
{
public:
    /// The dialog has the size of its template now, and its controls are to be added, each time that it is
    /// made.
    void begin(CWnd& dialog);
    void add(int id, Stretch how) { m_controls.push_back({id, how}); }

    /// For WM_SIZE.
    void apply(UINT type, CSize client);
    /// For WM_GETMINMAXINFO.
    void limit(MINMAXINFO& info) const;

private:
    struct Control
    {
        int id;
        Stretch how;
    };

    CWnd* m_dialog = nullptr;
    CSize m_client; // that the controls are placed for
    CSize m_least;  // of the window
    std::vector<Control> m_controls;
};

} // namespace ovoui::sysinfo
