// CToolBar: toolbar resources, and pictures that follow the system's colours.
#include <afxext.h>

#include <cstring>
#include <utility>

namespace
{

const LPCTSTR kToolBarType = MAKEINTRESOURCEW(241);

/// A toolbar resource: the size of the pictures, and the command of each button.
struct ToolBarData
{
    CSize image;
    std::vector<UINT> commands;
};

/// Width, height, the number of buttons and their commands, `Number` each.
template <class Number>
bool read(const Number* numbers, std::size_t count, ToolBarData& data)
{
    constexpr std::size_t kHead = 3;
    if (count < kHead || numbers[2] > count - kHead)
        return false;
    data.image = CSize(static_cast<int>(numbers[0]), static_cast<int>(numbers[1]));
    data.commands.assign(numbers + kHead, numbers + kHead + numbers[2]);
    return true;
}

/// Resource compilers write the version 1 and then numbers of 16 bits. GNU's windres writes no version, and
/// numbers of 32 bits, for the same script.
bool read(const void* resource, std::size_t bytes, ToolBarData& data)
{
    const auto* words = static_cast<const WORD*>(resource);
    if (!resource || bytes < 2 * sizeof(WORD))
        return false;
    if (words[0] == 1 && words[1] != 0)
        return read(words + 1, bytes / sizeof(WORD) - 1, data);
    return words[1] == 0 && read(static_cast<const DWORD*>(resource), bytes / sizeof(DWORD), data);
}

struct MappedColour
{
    COLORREF picture;
    int system;
};

constexpr MappedColour kMappedColours[] = {
    {RGB(0, 0, 0), COLOR_BTNTEXT},
    {RGB(128, 128, 128), COLOR_BTNSHADOW},
    {RGB(192, 192, 192), COLOR_BTNFACE},
    {RGB(255, 255, 255), COLOR_BTNHIGHLIGHT},
};

RGBQUAD mapped(const RGBQUAD& entry)
{
    for (const MappedColour& colour : kMappedColours) {
        if (RGB(entry.rgbRed, entry.rgbGreen, entry.rgbBlue) != colour.picture)
            continue;
        const COLORREF system = ::GetSysColor(colour.system);
        return {GetBValue(system), GetGValue(system), GetRValue(system), 0};
    }
    return entry;
}

/// Number of colours in the table of a bitmap, 0 for one without.
DWORD tableSize(const BITMAPINFOHEADER& header)
{
    if (header.biBitCount > 8)
        return 0;
    return header.biClrUsed ? header.biClrUsed : 1u << header.biBitCount;
}

/// A bitmap resource with the four standard greys replaced by the system's colours. Pictures with more than
/// 256 colours have no table of them and stay as they are. Null on failure.
HBITMAP loadMapped(HINSTANCE module, HRSRC resource)
{
    const HGLOBAL loaded = ::LoadResource(module, resource);
    const auto* header = loaded ? static_cast<const BITMAPINFOHEADER*>(::LockResource(loaded)) : nullptr;
    if (!header || header->biSize < sizeof(BITMAPINFOHEADER))
        return nullptr;
    const DWORD colours = tableSize(*header);
    const DWORD masks = header->biCompression == BI_BITFIELDS && header->biSize == sizeof *header ? 3 : 0;
    const DWORD infoSize = header->biSize + (colours + masks) * static_cast<DWORD>(sizeof(RGBQUAD));

    std::vector<BYTE> copy(reinterpret_cast<const BYTE*>(header),
                           reinterpret_cast<const BYTE*>(header) + infoSize);
    auto* table = reinterpret_cast<RGBQUAD*>(copy.data() + header->biSize);
    for (DWORD i = 0; i < colours; ++i)
        table[i] = mapped(table[i]);

    const CClientDC screen(nullptr);
    const BYTE* bits = reinterpret_cast<const BYTE*>(header) + infoSize;
    return ::CreateDIBitmap(screen.m_hDC, header, CBM_INIT, bits,
                            reinterpret_cast<const BITMAPINFO*>(copy.data()), DIB_RGB_COLORS);
}

} // namespace

BOOL CToolBar::LoadToolBar(UINT id)
{
    return LoadToolBar(MAKEINTRESOURCEW(id));
}

BOOL CToolBar::LoadToolBar(LPCTSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, kToolBarType);
    const HRSRC found = ::FindResourceW(module, name, kToolBarType);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    ToolBarData data;
    if (!loaded || !read(::LockResource(loaded), ::SizeofResource(module, found), data) ||
        !SetButtons(data.commands.data(), static_cast<int>(data.commands.size())))
        return FALSE;
    SetSizes(data.image + CSize(7, 7), data.image);
    return LoadBitmap(name);
}

BOOL CToolBar::LoadBitmap(UINT id)
{
    return LoadBitmap(MAKEINTRESOURCEW(id));
}

BOOL CToolBar::LoadBitmap(LPCTSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, RT_BITMAP);
    const HRSRC found = ::FindResourceW(module, name, RT_BITMAP);
    return found && showResource(module, found);
}

bool CToolBar::showResource(HINSTANCE module, HRSRC resource)
{
    const HBITMAP bitmap = loadMapped(module, resource);
    if (!bitmap)
        return false;
    if (!SetBitmap(bitmap)) {
        ::DeleteObject(bitmap);
        return false;
    }
    m_bitmapModule = module;
    m_bitmapResource = resource;
    return true;
}

BOOL CToolBar::SetBitmap(HBITMAP bitmap)
{
    BITMAP data{};
    if (!::GetObjectW(bitmap, sizeof data, &data))
        return FALSE;
    const int pictures = m_sizeImage.cx > 0 ? data.bmWidth / m_sizeImage.cx : 0;
    if (!showPictures(bitmap, pictures))
        return FALSE;
    ::DeleteObject(std::exchange(m_bitmap, bitmap));
    m_bitmapModule = nullptr;
    m_bitmapResource = nullptr;
    return TRUE;
}

/// Gives the control its first pictures, or others in place of those.
bool CToolBar::showPictures(HBITMAP bitmap, int count)
{
    if (!m_bitmap) {
        TBADDBITMAP added{nullptr, reinterpret_cast<UINT_PTR>(bitmap)};
        return SendMessage(TB_ADDBITMAP, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(&added)) != -1;
    }
    TBREPLACEBITMAP replaced{};
    replaced.nIDOld = reinterpret_cast<UINT_PTR>(m_bitmap);
    replaced.nIDNew = reinterpret_cast<UINT_PTR>(bitmap);
    replaced.nButtons = count;
    const bool shown = SendMessage(TB_REPLACEBITMAP, 0, reinterpret_cast<LPARAM>(&replaced)) != 0;
    Invalidate();
    return shown;
}

void CToolBar::OnSysColorChange()
{
    Default();
    if (m_bitmapResource)
        showResource(m_bitmapModule, m_bitmapResource);
}
