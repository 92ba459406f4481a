#include "ListScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kBlank = RGB(1, 2, 3); // a colour that no row has

int extentOf(HDC dc, const wchar_t* text, std::size_t length)
{
    SIZE size{};
    ::GetTextExtentPoint32W(dc, text, static_cast<int>(length), &size);
    return size.cx;
}

void fillRect(HDC dc, const CRect& rect, COLORREF colour)
{
    const HBRUSH brush = ::CreateSolidBrush(colour);
    ::FillRect(dc, &rect, brush);
    ::DeleteObject(brush);
}

DWORD blended(DWORD entry, DWORD ground)
{
    const DWORD alpha = entry >> 24;
    DWORD result = 0x02000000;
    for (int shift = 0; shift < 24; shift += 8) {
        const DWORD channel = (entry >> shift) & 0xFF;
        const DWORD value = ground ? 255 - (255 - channel) * alpha / 255 : channel * alpha / 255;
        result |= value << shift;
    }
    return result;
}

struct RowColours
{
    DWORD solid;
    DWORD overBlack;
    DWORD overWhite;
    DWORD text;
};

RowColours coloursOf(const Knowledge& known, COLORREF text, COLORREF background)
{
    if (!known.entry)
        return {background, background, background, text};
    const DWORD entry = *known.entry;
    const DWORD solid = (entry & 0xFFFFFF) | 0x02000000;
    const DWORD brightness = GetBValue(entry) + 5 * GetGValue(entry) + 3 * GetRValue(entry);
    const DWORD contrast = brightness < 1189 ? 0x02FFFFFF : 0x02000000;
    if (entry >> 24 == 255)
        return {solid, solid, solid, contrast};
    return {solid, blended(entry, 0), blended(entry, 1), contrast};
}

std::wstring cellText(List& list, int item, int column)
{
    return list.GetItemText(item, column).GetString();
}

void drawText(HDC dc, const std::wstring& text, CRect area, int inset, UINT alignment)
{
    area.DeflateRect(inset, 0);
    ::DrawTextW(dc, text.c_str(), -1, &area, 0x0924 | alignment);
}

} // namespace

void List::DrawItem(LPDRAWITEMSTRUCT draw)
{
    drawn.push_back(static_cast<int>(draw->itemID));
    given[drawn.back()] = draw->rcItem;
    COVOListCtrlEx::DrawItem(draw);
}

std::wstring shortByDefinition(HDC dc, const std::wstring& text, int width, int offset)
{
    const std::size_t n = text.size();
    if (n == 0 || extentOf(dc, text.c_str(), n) + offset <= width)
        return text;
    if (width < 1)
        return {};
    std::wstring buffer = text;
    const int dots = extentOf(dc, L"...", 4);
    for (std::size_t k = n - 1; k >= 1; --k) {
        buffer.resize(k);
        if (extentOf(dc, buffer.c_str(), k) + offset + dots <= width || k - 1 < 1)
            break;
    }
    if (buffer.size() == 1 && n > 1 && extentOf(dc, buffer.c_str(), 1) + offset > width)
        return {};
    return buffer.size() < n ? buffer + L"..." : buffer;
}

void drawSwatchByDefinition(HDC dc, DWORD colour, DWORD checkA, DWORD checkB, const CRect& area)
{
    if (checkA == checkB) {
        fillRect(dc, area, colour);
        return;
    }
    const int w = area.Width();
    const int h = area.Height();
    fillRect(dc, CRect(area.left, area.top, area.left + w / 2, area.bottom), colour);
    const int cell = std::min((h + 1) / 4, (w + 1) / 3);
    if (cell < 1)
        return;
    for (int y = area.top / cell * cell; y < (area.bottom + cell - 1) / cell * cell; y += cell)
        for (int c = 0, x = w / 2; x < w; ++c, x += cell) {
            CRect square(area.left + x, y, area.left + x + cell, y + cell);
            square.IntersectRect(&square, &area);
            fillRect(dc, square, (c + y / cell) % 2 == 0 ? checkA : checkB);
        }
}

void drawRowByDefinition(HDC dc, List& list, int item, const CRect& itemRect, const Knowledge& known)
{
    const bool focused = ::GetFocus() == list.m_hWnd;
    const UINT state = list.GetItemState(item, 0xFFFF);
    const bool selected = ((state & LVIS_SELECTED) && (focused || (list.GetStyle() & LVS_SHOWSELALWAYS))) ||
                          (state & LVIS_DROPHILITED);
    const COLORREF text = ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
    const COLORREF background = selected ? ::GetSysColor(COLOR_HIGHLIGHT) : list.GetBkColor();
    const RowColours colours = coloursOf(known, text, background);

    CRect bounds;
    CRect label;
    CRect icon;
    list.GetItemRect(item, &bounds, LVIR_BOUNDS);
    list.GetItemRect(item, &label, LVIR_LABEL);
    list.GetItemRect(item, &icon, LVIR_ICON);
    const CRect row(label.left, bounds.top, std::max<int>(bounds.right, known.clientWidth), bounds.bottom);

    const auto rowLook = [&] {
        ::SetTextColor(dc, text);
        ::SetBkColor(dc, background);
        ::SetBkMode(dc, OPAQUE);
    };
    const auto swatch = [&](const CRect& area) {
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextColor(dc, colours.text);
        drawSwatchByDefinition(dc, colours.solid, colours.overBlack, colours.overWhite, area);
    };

    rowLook();
    fillRect(dc, row, background);
    if (known.colourColumns.contains(0))
        swatch(label);
    if (const UINT image = (state & LVIS_STATEIMAGEMASK) >> 12)
        if (CImageList* images = list.GetImageList(LVSIL_STATE))
            ::ImageList_Draw(*images, static_cast<int>(image) - 1, dc, itemRect.left, itemRect.top,
                             ILD_TRANSPARENT);
    CImageList* const small = list.GetImageList(LVSIL_SMALL);
    if (small && itemRect.Width() >= 2) {
        LVITEM info{};
        info.mask = LVIF_IMAGE;
        info.iItem = item;
        list.GetItem(&info);
        ::ImageList_Draw(*small, info.iImage, dc, icon.left, icon.top,
                         ILD_TRANSPARENT | (state & LVIS_OVERLAYMASK));
    }
    CRect labelText = label;
    labelText.right -= known.stateImageWidth;
    drawText(dc, shortByDefinition(dc, cellText(list, item, 0), labelText.Width(), 4), labelText, 2, DT_LEFT);
    rowLook();

    CRect cell = label;
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_WIDTH;
    for (int i = 1; list.GetColumn(i, &column); ++i) {
        cell = CRect(cell.right, cell.top, cell.right + column.cx, cell.bottom);
        const std::wstring whole = cellText(list, item, i);
        if (whole.empty())
            continue;
        const std::wstring shown = shortByDefinition(dc, whole, cell.Width(), 12);
        UINT alignment = DT_LEFT;
        if (shown == whole && (column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT)
            alignment = DT_RIGHT;
        if (shown == whole && (column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_CENTER)
            alignment = DT_CENTER;
        if (known.colourColumns.contains(i))
            swatch(cell);
        drawText(dc, shown, cell, 6, alignment);
        rowLook();
    }
    if ((state & LVIS_FOCUSED) && focused)
        ::DrawFocusRect(dc, &row);
}

void fillImages(CImageList& images, int side, std::initializer_list<COLORREF> colours)
{
    images.Create(side, side, ILC_COLOR24 | ILC_MASK, static_cast<int>(colours.size()), 1);
    for (const COLORREF colour : colours) {
        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, side, side);
        CBitmap* const old = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, side, side, RGB(255, 0, 255)); // the mask
        memory.FillSolidRect(2, 2, side - 4, side - 4, colour);
        memory.SelectObject(old);
        images.Add(&bitmap, RGB(255, 0, 255));
    }
}

ListScene::ListScene(DWORD style, DWORD exStyle)
    : m_exStyle(exStyle)
{
    list.CreateEx(exStyle, WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_SHAREIMAGELISTS | style,
                  CRect(10, 10, 10 + kWidth, 10 + kHeight), &parent, 7);
    button.Create(L"Other", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 220, 100, 250), &parent, 8);
}

ListScene::~ListScene()
{
    list.DestroyWindow();
}

void ListScene::addColumn(const std::wstring& heading, int width, bool isColour, int format)
{
    const int index = list.GetHeaderCtrl()->GetItemCount();
    list.AddColumn(heading, index, -1, isColour, LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM, format);
    list.SetColumnWidth(index, width);
}

void ListScene::fill(std::initializer_list<int> widths, int rows)
{
    for (const int width : widths)
        addColumn(L"c", width);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < static_cast<int>(widths.size()); ++column)
            list.AddItem(row, column, std::to_wstring(row) + L"." + std::to_wstring(column), 0, -1);
}

void ListScene::show()
{
    present(parent);
}

CRect ListScene::rect(int item, int part)
{
    CRect result;
    EXPECT_TRUE(list.GetItemRect(item, &result, static_cast<UINT>(part)));
    return result;
}

CRect ListScene::cell(int item, int column)
{
    CRect result = rect(item, LVIR_LABEL);
    for (int i = 1; i <= column; ++i)
        result = CRect(result.right, result.top, result.right + list.GetColumnWidth(i), result.bottom);
    return result;
}

Picture ListScene::drawnByDefinition(int item, const CRect& itemRect, const Knowledge& known)
{
    CRect client;
    list.GetClientRect(&client);
    Picture picture(client.Width(), client.Height(), kBlank);
    if (m_exStyle & WS_EX_LAYOUTRTL)
        ::SetLayout(picture.dc(), LAYOUT_RTL);
    const HGDIOBJ old = ::SelectObject(picture.dc(), list.GetFont()->GetSafeHandle());
    drawRowByDefinition(picture.dc(), list, item, itemRect, known);
    ::SelectObject(picture.dc(), old);
    ::SetLayout(picture.dc(), 0);
    return picture;
}

void ListScene::expectRowInMemory(int item, const Knowledge& known)
{
    CRect client;
    list.GetClientRect(&client);
    Picture picture(client.Width(), client.Height(), kBlank);
    if (m_exStyle & WS_EX_LAYOUTRTL)
        ::SetLayout(picture.dc(), LAYOUT_RTL);
    const HGDIOBJ old = ::SelectObject(picture.dc(), list.GetFont()->GetSafeHandle());
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_LISTVIEW;
    draw.itemID = static_cast<UINT>(item);
    draw.hDC = picture.dc();
    draw.rcItem = itemRect(item);
    list.DrawItem(&draw);
    ::SelectObject(picture.dc(), old);
    ::SetLayout(picture.dc(), 0);
    EXPECT_EQ(picture.differences(drawnByDefinition(item, draw.rcItem, known)), 0)
        << "row " << item << " in memory";
}

void ListScene::expectRowOnScreen(int item, const Knowledge& known)
{
    list.RedrawWindow();
    const Picture shown = Picture::ofClient(list);
    const Picture expected = drawnByDefinition(item, list.given.at(item), known);
    int wrong = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            wrong += expected.at(x, y) != kBlank && shown.at(x, y) != expected.at(x, y);
    EXPECT_EQ(wrong, 0) << "row " << item << " on the screen";
}

void ListScene::expectRow(int item, const Knowledge& known)
{
    expectRowInMemory(item, known);
    expectRowOnScreen(item, known);
}
