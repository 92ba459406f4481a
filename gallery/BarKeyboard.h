// The keyboard in bars: a key leads from one to the next, and back to where it came from.
#pragma once

#include <afxext.h>

#include <vector>

class BarKeyboard
{
public:
    using Bars = std::vector<CControlBar*>;

    /// Adds the bars with buttons and those with the controls of a template that lie inside `page`, or float
    /// beside it.
    static void collect(CWnd& page, Bars& bars);

    /// Gives the focus to the bar behind the one that has it, or to the first; bars that are hidden or have
    /// nothing to use are left out. Behind the last one the focus goes back to where it was before the first.
    void step(const Bars& bars);

    /// Whether `offer` may do something with it, whatever bars there are.
    static bool isForBars(const MSG& message);

    /// Where a bar with the controls of a template has the focus: Tab walks over them, the letter of a label
    /// leads to its control, Escape leads back. True when the message is done with.
    bool offer(const Bars& bars, MSG& message);

private:
    void leave();

    HWND m_before = nullptr; ///< had the focus before the bars
};
