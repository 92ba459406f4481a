/// The same images in several sizes, and image lists of the size that a monitor wants.
///
///     m_images = CImageStrips({{IDB_TOOLS_16, 16}, {IDB_TOOLS_24, 24}, {IDB_TOOLS_32, 32}}, 16);
///     m_images.Load(*this);
///     m_tree.SetImageList(m_images.ImageList(), TVSIL_NORMAL); // as long as the object lives
#pragma once

#include <ovoui/export.h>
#include <ovoui/images/AlphaImageList.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Of several strips the one that was drawn for the size wanted is loaded; else the least of the larger ones,
/// made smaller by the mean of areas; else the largest, made larger. A drawing is asked for the very size.
/// The host must have started GDI+; without it nothing is loaded.
class OVOUI_API CImageStrips
{
public:
    /// Images of `size` by `size` pixels side by side. All strips have the same images in the same order.
    struct Strip
    {
        UINT bitmapId = 0; ///< the bitmap resource, found by the framework's search
        int size = 0;      ///< of each image, in pixels
        std::wstring file =
            {}; ///< if not empty, a picture file in place of the resource: BMP, or what GDI+ reads
    };

    /// Makes a strip with images of `size` by `size` pixels: a bitmap of 32 bits a pixel that are not
    /// premultiplied, which is handed over. Null when it cannot be made.
    using Drawing = std::function<HBITMAP(int size)>;

    /// Without strips; nothing can be loaded.
    CImageStrips();
    /// Images that are `imageSize` pixels large at 96 dots per inch, from one of `strips`.
    CImageStrips(std::vector<Strip> strips, int imageSize);
    /// Images that are `imageSize` pixels large at 96 dots per inch, made by `draw`.
    CImageStrips(Drawing draw, int imageSize);
    /// The lists go with the object.
    ~CImageStrips();
    CImageStrips(CImageStrips&& other) noexcept;
    CImageStrips& operator=(CImageStrips&& other) noexcept;

    /// Makes a list of disabled images as well, from the next loading on; off at first. See disabledStrip.
    void UseDisabledImages(bool use);

    /// Makes the lists for a resolution, `dotsPerInch`. Nothing happens when they have this size already.
    /// FALSE when they cannot be made; what was loaded before stays. What the drawing raises comes out.
    ///
    /// The lists of before stay good until the loading after this one, so that controls can be given the new
    /// ones.
    BOOL Load(int dotsPerInch);
    /// The same for the monitor that shows `window`, which must have been created.
    BOOL Load(const CWnd& window);
    /// Makes the lists anew in the same size, after a change of the system's colours. FALSE as above, and
    /// when nothing was loaded before.
    BOOL Reload();

    int GetSize() const;                     ///< width and height of the images loaded, in pixels; 0 for none
    CImageList* ImageList();                 ///< the images, which stay this object's; null before loading
    HIMAGELIST GetImageList() const;         ///< the same by its handle
    HIMAGELIST GetDisabledImageList() const; ///< their disabled forms; null if not asked for

    /// Follows a frame or another window without a parent, `window`, which is told by WM_DPICHANGED: loads
    /// for the new resolution and calls `changed`, before the window itself gets the message. `changed` gives
    /// the new lists to the controls; it is not called when the size stays. Where disabled images are asked
    /// for or a drawing makes the images, they are made anew and it is called after a change of the system's
    /// colours, too. It and the drawing may destroy the window and this object, and when the drawing has, it
    /// is not called; what they raise passes on to the sender of the message. Ends with the window, with this
    /// object, and when another window is followed. Null for `changed` just loads. FALSE when the window
    /// cannot be followed.
    BOOL Follow(CWnd& window, std::function<void()> changed);

private:
    struct State;

    std::shared_ptr<State> m_state;
};
