// The wheel, each pixel asked for by itself.
#pragma once

#include <ovoui/colour/core/WheelGeometry.h>

#include <cstdint>

void drawPlainWheel(std::uint32_t* pixels, const ovoui::frame::Box& wheel, Angle hue);
