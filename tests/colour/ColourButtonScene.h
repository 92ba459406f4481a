// A colour button with six colours, of which the third one is its own.
#pragma once

#include "ColourControlsScene.h"

#include <testkit/AccessibleView.h>

#include <ovoui/colour/ColourButton.h>

#include <functional>
#include <memory>
#include <optional>

namespace ovo::testkit
{

/// A button that asks the test for the colour, where it wants to be asked.
class PenButton : public CColourButton
{
public:
    int asked = 0;
    std::function<std::optional<Colour>(const Colour&)> onAsk;
    using CColourButton::askForColour;

    std::optional<Colour> askForColour(const Colour& colour) override
    {
        ++asked;
        const auto ask = onAsk;
        return ask ? ask(colour) : CColourButton::askForColour(colour);
    }
};

class ColourButton : public ColourControls
{
protected:
    void show(CPoint place = {100, 80})
    {
        parent.SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        button = std::make_unique<PenButton>();
        button->Create(L"&Pen", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 80, 44), &parent, 7);
        button->SetColour(Colour::colorref(kSky));
        button->SetPalette({kLeaf, kRust, kSky, RGB(255, 0, 0), RGB(0, 0, 255), RGB(0, 0, 0)}, 3);
        present(parent);
    }
    void open()
    {
        user.click(Spot{*button}).waitFor("the palette", [this] { return button->IsDropped(); });
    }
    /// A cell of the palette, or the line after the last one.
    Spot cell(int index) const
    {
        const AccessibleView list(shownPopup());
        return Spot{list.place(index + 1).CenterPoint()};
    }
    COLORREF now() const { return button->GetColour().colorref(); }

    std::unique_ptr<PenButton> button;
};

} // namespace ovo::testkit
