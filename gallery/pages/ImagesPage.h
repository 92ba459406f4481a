// Alpha images at several sizes and in all their states, and buttons that show them.
#pragma once

#include "DrawingSamples.h"
#include "GalleryPage.h"

#include <ovoui/images/AlphaImageButton.h>
#include <ovoui/images/AlphaImageList.h>

#include <array>

/// Strips drawn out of image lists, some enlarged so that pixels can be seen.
class ImageSamples : public CWnd
{
public:
    bool create(CWnd& parent);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void drawLabel(CDC& dc, const wchar_t* text, int top, int height);
    int drawSizes(CDC& dc, int top);
    int drawScaled(CDC& dc, int top);
    int drawStates(CDC& dc, int top);

    std::array<CAlphaImageList, 3> m_sizes; ///< strips of 16, 24 and 32 pixels, at the monitor's scale
    CAlphaImageList m_soft;                 ///< from 16 to 24 pixels, not sharpened
    CAlphaImageList m_sharp;                ///< the same, sharpened
};

class ImagesPage : public GalleryPage
{
public:
    ImagesPage();
    ~ImagesPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnDrawings();
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void loadImages();

    ImageSamples m_samples;
    DrawingSamples m_drawings;
    std::array<CAlphaImageButton, 7> m_buttons;
};
