// The GDI family: drawing tools and the device contexts they are selected into.
#pragma once

#include <afx/Bitmap.h>
#include <afx/Brush.h>
#include <afx/ClientDc.h>
#include <afx/Dc.h>
#include <afx/Font.h>
#include <afx/GdiObject.h>
#include <afx/PaintDc.h>
#include <afx/Palette.h>
#include <afx/Pen.h>
#include <afx/Region.h>
#include <afx/WindowDc.h>
