// Core Graphics: geometry, colour spaces, contexts, images.
#pragma once

#include <CoreGraphics/CGBase.h>

#include <CoreGraphics/CGBitmapContext.h>
#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGContext.h>
#include <CoreGraphics/CGGeometry.h>
#include <CoreGraphics/CGImage.h>
