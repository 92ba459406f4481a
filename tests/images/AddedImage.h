/// What the library hands to image lists, seen on its way.
#pragma once

#include <testkit/ImportPatch.h>

#include <windows.h>
#include <commctrl.h>

#include <cstdint>
#include <vector>

/// A bitmap that was added.
struct AddedImage
{
    HIMAGELIST list = nullptr;
    bool masked = false;
    COLORREF maskColour = CLR_INVALID;
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< from the top left, 0xAARRGGBB

    std::uint32_t at(int x, int y) const;
};

/// Takes down every bitmap that ovoui.dll adds to an image list while this object lives.
class AddedImages
{
public:
    AddedImages();
    ~AddedImages();
    AddedImages(const AddedImages&) = delete;
    AddedImages& operator=(const AddedImages&) = delete;

    const std::vector<AddedImage>& all() const { return m_all; }
    const AddedImage& last() const { return m_all.back(); }

    /// Makes the lists refuse what is added from now on.
    void refuse() { m_refuses = true; }

private:
    static int WINAPI add(HIMAGELIST list, HBITMAP bitmap, HBITMAP mask);
    static int WINAPI addMasked(HIMAGELIST list, HBITMAP bitmap, COLORREF mask);
    void note(AddedImage image, HBITMAP bitmap);

    static AddedImages* s_current;
    std::vector<AddedImage> m_all;
    bool m_refuses = false;
    ovo::testkit::ImportPatch m_add;
    ovo::testkit::ImportPatch m_addMasked;
};
