/// Umbrella header of the module that reads drawings.
#pragma once

#include <ovosvg/SvgDrawing.h>
#include <ovosvg/SvgError.h>
#include <ovosvg/SvgNote.h>
#include <ovosvg/SvgStrip.h>
