/// The gallery's window as the program opens it.
#pragma once

#include "GalleryFrame.h"
#include <testkit/Desktop.h>
#include <testkit/Robot.h>

#include <string>
#include <vector>

class GalleryScene
{
public:
    /// From which side the windows are laid out.
    enum class From
    {
        Left,
        Right
    };

    explicit GalleryScene(From from = From::Left);
    ~GalleryScene();
    GalleryScene(const GalleryScene&) = delete;
    GalleryScene& operator=(const GalleryScene&) = delete;

    GalleryFrame& frame() { return *m_frame; }
    GalleryPage& page() { return m_frame->page(); }
    bool isOpen() const { return ::IsWindow(m_handle) != FALSE; }

    void open(const wchar_t* page);
    /// Makes the window larger, or smaller for negative numbers; in pixels at 96 dots per inch.
    void grow(int width, int height);

    /// The control of the page with this number.
    HWND control(int id);
    /// The windows on the page that can be seen.
    std::vector<HWND> controls();
    /// Where a child of the page is, in the page's client pixels.
    CRect placeOnPage(HWND child);
    CSize pageSize();

private:
    GalleryFrame* m_frame; ///< deletes itself with its window
    HWND m_handle;
};
