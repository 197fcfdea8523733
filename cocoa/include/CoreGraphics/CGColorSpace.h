// Colour spaces: the device's red, green and blue, each 0 to 1. A missing space (NULL) may be
// retained and released.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGColorSpace* CGColorSpaceRef;

// Owned by the caller.
CG_EXTERN CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
CG_EXTERN CGColorSpaceRef CGColorSpaceRetain(CGColorSpaceRef space);
CG_EXTERN void CGColorSpaceRelease(CGColorSpaceRef space);
// 3, without alpha; 0 for NULL.
CG_EXTERN size_t CGColorSpaceGetNumberOfComponents(CGColorSpaceRef space);
