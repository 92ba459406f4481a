/// Images that look disabled, made from normal ones.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

/// A new strip with the images of `strip`, `imageSize` by `imageSize` pixels each, as they look when what
/// they stand for cannot be used: grey by their lightness, at half their alpha. Under a scheme of high
/// contrast they keep their alpha and get the colours of disabled text and of button faces. Made for the
/// scheme of now, so it is made again after WM_SYSCOLORCHANGE.
///
///     CBitmap disabled;
///     disabled.Attach(disabledStrip(strip, 24));
///
/// `strip` stays the caller's. One of less than 32 bits a pixel has the colour of its top left pixel for
/// transparency; for it the host must have started GDI+. The result has 32 bits a pixel that are not
/// premultiplied, as CAlphaImageList::AddBitmap takes them; the caller owns it. Null when the strip cannot be
/// read or holds no whole image.
OVOUI_API HBITMAP disabledStrip(HBITMAP strip, int imageSize);

/// The same from the bitmap resource `id`, found by the framework's search. There light grey (C0C0C0) is
/// transparent in less than 32 bits a pixel.
OVOUI_API HBITMAP disabledStrip(UINT id, int imageSize);
