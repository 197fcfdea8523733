#include "CairoContext.h"

#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>

using graphics::CairoContext;
using graphics::context_of;
using graphics::Pixels;

@interface CGBitmapContextObject : NSObject {
  @public
    CairoContext* _context;
}
@end

@implementation CGBitmapContextObject
- (void)dealloc {
    delete _context;
    [super dealloc];
}
@end

namespace {

constexpr size_t most_pixels = 32767; // cairo's limit

bool supported(const void* data, size_t width, size_t height, size_t bytes_per_row) {
    if (width < 1 || height < 1 || width > most_pixels || height > most_pixels) return false;
    return data && reinterpret_cast<uintptr_t>(data) % 4 == 0 && bytes_per_row >= 4 * width &&
           bytes_per_row % 4 == 0 && bytes_per_row <= INT_MAX / height;
}

} // namespace

graphics::CairoContext* graphics::context_of(CGContextRef reference) {
    return reference ? reinterpret_cast<CGBitmapContextObject*>(reference)->_context : nullptr;
}

CGContextRef CGBitmapContextCreate(void* data, size_t width, size_t height, size_t bitsPerComponent,
                                   size_t bytesPerRow, CGColorSpaceRef space, CGBitmapInfo info) {
    if (!supported(data, width, height, bytesPerRow)) return nullptr;
    if (bitsPerComponent != 8 || !space || info != kCGImageAlphaPremultipliedLast) return nullptr;
    auto context = std::make_unique<CairoContext>();
    if (!context->pixels.make(static_cast<unsigned char*>(data), width, height, bytesPerRow))
        return nullptr;
    context->cairo = cairo_create(context->pixels.surface);
    cairo_set_line_width(context->cairo, 1);
    cairo_set_tolerance(context->cairo, 0.03); // small circles stay round
    context->apply_ctm();
    CGBitmapContextObject* made = [[CGBitmapContextObject alloc] init];
    made->_context = context.release();
    return (CGContextRef)made;
}

size_t CGBitmapContextGetWidth(CGContextRef context) {
    return context ? context_of(context)->pixels.width : 0;
}

size_t CGBitmapContextGetHeight(CGContextRef context) {
    return context ? context_of(context)->pixels.height : 0;
}

CGImageRef CGBitmapContextCreateImage(CGContextRef context) {
    if (!context) return nullptr;
    const Pixels& source = context_of(context)->pixels;
    auto copy = std::make_unique<Pixels>();
    if (!copy->make(nullptr, source.width, source.height, 4 * source.width)) return nullptr;
    for (size_t row = 0; row < source.height; ++row)
        memcpy(copy->data + row * copy->bytes_per_row, source.data + row * source.bytes_per_row,
               copy->bytes_per_row);
    return graphics::make_image(copy.release());
}
