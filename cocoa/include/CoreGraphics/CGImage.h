// Immutable pictures: RGBA pixels of 8 bits each, premultiplied, row 0 at the top.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGImage* CGImageRef;

typedef uint32_t CGImageAlphaInfo;
enum { kCGImageAlphaPremultipliedLast = 1 };

typedef uint32_t CGBitmapInfo;
enum { kCGBitmapByteOrderDefault = 0, kCGBitmapByteOrder32Big = 4 << 12 };

// NULL may be retained and released.
CG_EXTERN CGImageRef CGImageRetain(CGImageRef image);
CG_EXTERN void CGImageRelease(CGImageRef image);
// In pixels; 0 for NULL.
CG_EXTERN size_t CGImageGetWidth(CGImageRef image);
CG_EXTERN size_t CGImageGetHeight(CGImageRef image);
