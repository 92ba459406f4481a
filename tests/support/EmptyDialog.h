/// A modeless dialog that needs no template: for controls that tests put into dialogs.
#pragma once

#include <afxwin.h>

/// Shown as soon as it is created, without controls. `Base` is the class of dialogs that it is one of.
template <class Base = CDialog>
class EmptyDialog : public Base
{
public:
    using Base::Base;

    /// Place and size in dialog units.
    BOOL create(CPoint place, CSize size)
    {
        const struct
        {
            DLGTEMPLATE head;
            WORD menu = 0;
            WORD windowClass = 0;
            WORD title = 0;
        } empty{.head = {.style = WS_POPUP | WS_VISIBLE | WS_CAPTION,
                         .dwExtendedStyle = WS_EX_CONTROLPARENT,
                         .cdit = 0,
                         .x = static_cast<short>(place.x),
                         .y = static_cast<short>(place.y),
                         .cx = static_cast<short>(size.cx),
                         .cy = static_cast<short>(size.cy)}};
        return Base::CreateIndirect(&empty.head, nullptr);
    }
};
