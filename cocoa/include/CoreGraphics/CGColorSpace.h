// Colour spaces: the device's red, green and blue, each 0 to 1.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGColorSpace* CGColorSpaceRef;

// Owned by the caller.
CG_EXTERN CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
CG_EXTERN void CGColorSpaceRelease(CGColorSpaceRef space); // NULL is allowed
