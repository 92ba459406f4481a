/// Not exported: what the items of a combo box look like, and how they are drawn.
#pragma once

#include <ovoui/lists/core/ItemLooks.h>

#include <afxcmn.h>

#include <string>

namespace ovoui::lists
{

/// An item to be drawn, in the context's font.
struct ComboItem
{
    CRect place;
    std::wstring text;
    ItemLook look;
    UINT state;               ///< ODS_ bits
    std::wstring foldedFound; ///< the part that stands out; empty for none
};

class ComboItems
{
public:
    ItemLooks looks;
    CImageList* images = nullptr; ///< the host's
    bool asked = false;           ///< the host has asked for colours or images; else it draws itself

    /// Fills the place, and draws swatch, image and text into it.
    void draw(CDC& dc, const ComboItem& item) const;

    /// In pixels, for a font.
    int heightFor(CDC& dc) const;

private:
    CSize imageSize() const;
};

} // namespace ovoui::lists
