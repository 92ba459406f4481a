/// A push button that shows a square image from the resources.
///
///     button.setSize(16);
///     button.loadImage(IDB_BUTTONS_16); // the first image of the strip
#pragma once

#include <ovoui/export.h>
#include <ovoui/images/AlphaImageList.h>

#include <afxwin.h>

#include <memory>

/// With visual styles it shows an image with alpha, by a button image list; without them a classic bitmap in
/// which light grey becomes the colour of button faces and black that of their text. The host makes the
/// button with BS_BITMAP, which the classic bitmap needs.
class OVOUI_API CAlphaImageButton : public CButton
{
    DECLARE_DYNAMIC(CAlphaImageButton)

public:
    CAlphaImageButton();
    /// The window must have been destroyed: it still shows the image, which is freed here.
    ~CAlphaImageButton() override;

    /// Width and height of the image in pixels; for the next loadImage.
    void setSize(unsigned int size);

    /// Shows the bitmap resource `id`, found by the framework's search: the first image of it with visual
    /// styles, all of it without. In the latter case only a bitmap with a palette gets the system's colours.
    /// Without such a resource the button shows no image. Can be called again, for another image or after a
    /// change of the theme. The window must be there: one that is made later shows nothing until the next
    /// call.
    void loadImage(unsigned int id);

    /// Whether the image of the disabled button is made from the normal one, instead of being left to the
    /// system; for the next loadImage, which the host calls after a change of the system's colours, too. Off
    /// at first. Counts with visual styles. See disabledStrip.
    void useDisabledImage(bool use);

protected:
    afx_msg int OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void loadThemed(unsigned int id);
    void loadClassic(unsigned int id);
    void addStates(unsigned int id, const CSize& size, const DWORD* remap);

    // Each stays when the other one takes its place in the button.
    std::unique_ptr<CBitmap> m_classic;
    std::unique_ptr<CAlphaImageList> m_images;
    unsigned int m_size = 0;
    bool m_makesDisabled = false;
};
