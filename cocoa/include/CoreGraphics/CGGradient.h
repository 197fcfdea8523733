// Colours along a line from 0 to 1.
#pragma once

#include <CoreGraphics/CGColorSpace.h>

typedef struct CGGradient* CGGradientRef;

typedef uint32_t CGGradientDrawingOptions;
enum { kCGGradientDrawsBeforeStartLocation = 1 << 0, kCGGradientDrawsAfterEndLocation = 1 << 1 };

// `count` colours of four components (red, green, blue, alpha, not premultiplied), at the given
// locations, or evenly from 0 to 1 when `locations` is NULL. NULL without colours or space.
CG_EXTERN CGGradientRef CGGradientCreateWithColorComponents(CGColorSpaceRef space,
                                                            const CGFloat* components,
                                                            const CGFloat* locations, size_t count);
// NULL may be retained and released.
CG_EXTERN CGGradientRef CGGradientRetain(CGGradientRef gradient);
CG_EXTERN void CGGradientRelease(CGGradientRef gradient);
