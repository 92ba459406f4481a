// The same images at several sizes: drawn for each, and scaled from strips.
#pragma once

#include <ovoui/images/ImageStrips.h>

#include <afxwin.h>

#include <array>
#include <cstddef>

class DrawingSamples : public CWnd
{
public:
    /// Hidden.
    bool create(CWnd& parent);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t kSizes = 5;
    using Row = std::array<CImageStrips, kSizes>;

    void load(CImageStrips& strips, CWnd& parent);
    int drawSizes(CDC& dc);
    int drawRow(CDC& dc, const wchar_t* label, const Row& row, bool disabled, int top);
    void drawEnlarged(CDC& dc, const wchar_t* label, int top);

    Row m_drawn;
    Row m_scaled;
};
