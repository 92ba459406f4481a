// The filter as its definition reads: one channel of one pixel after the other, in single precision.
#pragma once

#include <ovoui/images/core/SharpenFilter.h>

void sharpenPlainly(const ovoui::images::PixelBlock& block);
