// Immutable pictures: RGBA pixels of 8 bits each, premultiplied, row 0 at the top.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGImage* CGImageRef;

enum { kCGImageAlphaPremultipliedLast = 1 };
typedef uint32_t CGBitmapInfo;

CG_EXTERN void CGImageRelease(CGImageRef image); // NULL is allowed
