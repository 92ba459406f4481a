// Where the controls of a page go when its size is not the one of its template.
#pragma once

#include <afxwin.h>

#include <vector>

/// How a control uses the room that its page gains beyond its template: by how many hundredths of it the
/// control moves and grows. What is not named stays 0: a control without any keeps its place and size.
struct Stretch
{
    int moveX = 0;
    int moveY = 0;
    int growX = 0;
    int growY = 0;
};

/// A larger page gives its room to the controls that stretch; a smaller one gets scroll bars.
class PageLayout
{
public:
    /// The page has the size of its template now.
    void begin(CWnd& page);

    /// The child is now where the template's size has it.
    void stretch(HWND child, const Stretch& how);

    /// Places the children for the page's present size.
    void apply();

    /// Whether the page is too low to be seen whole.
    bool scrollsVertically() const;
    /// `bar` is SB_HORZ or SB_VERT, `code` that of WM_HSCROLL or WM_VSCROLL.
    void scroll(int bar, int code);
    /// Scrolls until a window inside the page is in view.
    void reveal(HWND inside);

private:
    struct Item
    {
        HWND window;
        CRect home; ///< in the template's size, not scrolled
        Stretch how;
    };

    void showBars();
    void scrollTo(CPoint offset);
    void place();
    CSize viewSize() const;
    CPoint farthest() const;

    HWND m_page = nullptr;
    CSize m_size;    ///< the template's, in pixels
    CPoint m_offset; ///< how far the page is scrolled, in pixels
    std::vector<Item> m_items;
    bool m_applying = false;
};
