#include "AddedImage.h"

#include <utility>

AddedImages* AddedImages::s_current = nullptr;

std::uint32_t AddedImage::at(int x, int y) const
{
    return pixels.at(static_cast<std::size_t>(y * width + x));
}

AddedImages::AddedImages()
    : m_add(L"ovoui.dll", "ImageList_Add", reinterpret_cast<void*>(&add))
    , m_addMasked(L"ovoui.dll", "ImageList_AddMasked", reinterpret_cast<void*>(&addMasked))
{
    s_current = this;
}

AddedImages::~AddedImages()
{
    s_current = nullptr;
}

int WINAPI AddedImages::add(HIMAGELIST list, HBITMAP bitmap, HBITMAP mask)
{
    AddedImage image;
    image.list = list;
    image.masked = mask != nullptr;
    s_current->note(std::move(image), bitmap);
    return s_current->m_refuses ? -1 : ::ImageList_Add(list, bitmap, mask);
}

int WINAPI AddedImages::addMasked(HIMAGELIST list, HBITMAP bitmap, COLORREF mask)
{
    AddedImage image;
    image.list = list;
    image.masked = true;
    image.maskColour = mask;
    s_current->note(std::move(image), bitmap);
    return s_current->m_refuses ? -1 : ::ImageList_AddMasked(list, bitmap, mask);
}

void AddedImages::note(AddedImage image, HBITMAP bitmap)
{
    DIBSECTION dib{};
    if (::GetObjectW(bitmap, sizeof dib, &dib) == sizeof dib) {
        image.width = dib.dsBm.bmWidth;
        image.height = dib.dsBm.bmHeight;
        const auto* first = static_cast<const std::uint32_t*>(dib.dsBm.bmBits); // top-down
        image.pixels.assign(first, first + image.width * image.height);
    }
    m_all.push_back(std::move(image));
}
