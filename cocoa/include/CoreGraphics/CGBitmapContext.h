// Contexts that draw into memory.
#pragma once

#include <CoreGraphics/CGContext.h>

// A context over `data`: `height` rows of `bytesPerRow` bytes, the top row first, each pixel four
// bytes: red, green, blue, alpha, premultiplied. `data` is the caller's and outlives the context.
// The pixels are in the buffer when the drawing function returns.
//
// NULL unless bitsPerComponent is 8, there is a space, the info is kCGImageAlphaPremultipliedLast,
// both sizes are 1 to 32767, bytesPerRow is a multiple of 4 and at least 4 x width, `data` is not
// NULL and aligned to 4 bytes, and all rows together are less than 2^31 bytes.
CG_EXTERN CGContextRef CGBitmapContextCreate(void* data, size_t width, size_t height,
                                             size_t bitsPerComponent, size_t bytesPerRow,
                                             CGColorSpaceRef space, CGBitmapInfo info);
// 0 or NULL for a context that is NULL.
CG_EXTERN size_t CGBitmapContextGetWidth(CGContextRef context);
CG_EXTERN size_t CGBitmapContextGetHeight(CGContextRef context);
// A copy of the pixels as they are now, owned by the caller; NULL when memory is out.
CG_EXTERN CGImageRef CGBitmapContextCreateImage(CGContextRef context);
