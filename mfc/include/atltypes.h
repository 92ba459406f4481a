// CPoint, CSize and CRect: the platform's structures with arithmetic, and nothing else in them.
#ifndef __ATLTYPES_H__
#define __ATLTYPES_H__
#pragma once

#include <afx/Platform.h>

// CRect gives its corners as references to points, so these may be read and written through other types.
class __attribute__((may_alias)) CPoint;
class CRect;

class __attribute__((may_alias)) CSize : public SIZE
{
public:
    CSize() { cx = cy = 0; }
    CSize(int x, int y) { cx = x, cy = y; }
    CSize(SIZE size) { cx = size.cx, cy = size.cy; }
    CSize(POINT point) { cx = point.x, cy = point.y; }
    /// Low word: width, high word: height.
    CSize(DWORD packed) { cx = static_cast<short>(LOWORD(packed)), cy = static_cast<short>(HIWORD(packed)); }

    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) { cx -= size.cx, cy -= size.cy; }
    void SetSize(int x, int y) { cx = x, cy = y; }

    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;
};

class __attribute__((may_alias)) CPoint : public POINT
{
public:
    CPoint() { x = y = 0; }
    CPoint(int initX, int initY) { x = initX, y = initY; }
    CPoint(POINT point) { x = point.x, y = point.y; }
    CPoint(SIZE size) { x = size.cx, y = size.cy; }
    /// As in a mouse message: low word x, high word y, both signed.
    CPoint(LPARAM packed)
    {
        x = static_cast<short>(LOWORD(static_cast<DWORD>(packed)));
        y = static_cast<short>(HIWORD(static_cast<DWORD>(packed)));
    }

    void Offset(int dx, int dy) { x += dx, y += dy; }
    void Offset(POINT point) { x += point.x, y += point.y; }
    void Offset(SIZE size) { x += size.cx, y += size.cy; }
    void SetPoint(int newX, int newY) { x = newX, y = newY; }

    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { x += size.cx, y += size.cy; }
    void operator-=(SIZE size) { x -= size.cx, y -= size.cy; }
    void operator+=(POINT point) { x += point.x, y += point.y; }
    void operator-=(POINT point) { x -= point.x, y -= point.y; }

    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;
};

/// Right and bottom are exclusive. Nothing normalises by itself.
class CRect : public RECT
{
public:
    CRect() { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    CRect(const RECT& rect) { ::CopyRect(this, &rect); }
    CRect(LPCRECT rect) { ::CopyRect(this, rect); }
    CRect(POINT point, SIZE size)
    {
        left = point.x, top = point.y, right = point.x + size.cx, bottom = point.y + size.cy;
    }
    CRect(POINT topLeft, POINT bottomRight)
    {
        left = topLeft.x, top = topLeft.y, right = bottomRight.x, bottom = bottomRight.y;
    }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(right - left, bottom - top); }
    /// References, so that a corner can be moved by itself.
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    void SetRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
    void SetRect(POINT topLeft, POINT bottomRight)
    {
        ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT source) { ::CopyRect(this, source); }
    void SwapLeftRight() { SwapLeftRight(this); }
    static void WINAPI SwapLeftRight(LPRECT rect)
    {
        const LONG old = rect->left;
        rect->left = rect->right;
        rect->right = old;
    }

    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT r) { InflateRect(r->left, r->top, r->right, r->bottom); }
    void InflateRect(int l, int t, int r, int b) { left -= l, top -= t, right += r, bottom += b; }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT r) { DeflateRect(r->left, r->top, r->right, r->bottom); }
    void DeflateRect(int l, int t, int r, int b) { left += l, top += t, right -= r, bottom -= b; }

    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) { ::OffsetRect(this, point.x, point.y); }
    void MoveToX(int x) { right = Width() + x, left = x; }
    void MoveToY(int y) { bottom = Height() + y, top = y; }
    void MoveToXY(int x, int y) { MoveToX(x), MoveToY(y); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }
    /// Exchanges sides so that width and height are not negative.
    void NormalizeRect()
    {
        if (left > right)
            SwapLeftRight();
        if (top > bottom) {
            const LONG old = top;
            top = bottom;
            bottom = old;
        }
    }

    /// All four sides times a fraction, rounded.
    CRect MulDiv(int multiplier, int divisor) const
    {
        const auto scaled = [=](LONG side) { return ::MulDiv(side, multiplier, divisor); };
        return CRect(scaled(left), scaled(top), scaled(right), scaled(bottom));
    }

    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }
    BOOL SubtractRect(LPCRECT a, LPCRECT b) { return ::SubtractRect(this, a, b); }

    void operator=(const RECT& rect) { ::CopyRect(this, &rect); }
    BOOL operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT rect) { InflateRect(rect); }
    void operator-=(POINT point) { ::OffsetRect(this, -point.x, -point.y); }
    void operator-=(SIZE size) { ::OffsetRect(this, -size.cx, -size.cy); }
    void operator-=(LPCRECT rect) { DeflateRect(rect); }
    void operator&=(const RECT& rect) { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) { ::UnionRect(this, this, &rect); }

    CRect operator+(POINT point) const
    {
        return changed([&](CRect& r) { r += point; });
    }
    CRect operator-(POINT point) const
    {
        return changed([&](CRect& r) { r -= point; });
    }
    CRect operator+(SIZE size) const
    {
        return changed([&](CRect& r) { r += size; });
    }
    CRect operator-(SIZE size) const
    {
        return changed([&](CRect& r) { r -= size; });
    }
    CRect operator+(LPCRECT rect) const
    {
        return changed([&](CRect& r) { r += rect; });
    }
    CRect operator-(LPCRECT rect) const
    {
        return changed([&](CRect& r) { r -= rect; });
    }
    CRect operator&(const RECT& rect) const
    {
        return changed([&](CRect& r) { r &= rect; });
    }
    CRect operator|(const RECT& rect) const
    {
        return changed([&](CRect& r) { r |= rect; });
    }

private:
    template <class Change>
    CRect changed(Change change) const
    {
        CRect copy(*this);
        change(copy);
        return copy;
    }
};

inline CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CSize::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
inline CRect CPoint::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CPoint::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}

#endif // __ATLTYPES_H__
