// Core Graphics: geometry, transforms, colour spaces, contexts, images, gradients.
#pragma once

#include <CoreGraphics/CGBase.h>

#include <CoreGraphics/CGGeometry.h>
