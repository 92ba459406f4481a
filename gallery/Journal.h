// The gallery's journal of notifications: a list of the last lines.
#pragma once

#include <afxwin.h>

#include <deque>
#include <string>

/// A line costs next to nothing when it is added: the list takes all that have come when it is next painted
/// or asked about its lines.
class Journal : public CListBox
{
public:
    bool create(CWnd& parent, int id);

    void add(const std::wstring& line);
    void clear();
    bool isEmpty() const;

    /// Takes a font, which must live as long as it is used.
    void useFont(CFont& font);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void showAdded();
    void widen(int from);

    std::deque<std::wstring> m_added; ///< and not yet in the list
};
