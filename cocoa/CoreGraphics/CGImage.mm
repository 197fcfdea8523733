#include "CairoContext.h"

#include <cstdlib>

using graphics::Pixels;

@interface CGPixelImage : NSObject {
  @public
    Pixels* _pixels;
}
@end

@implementation CGPixelImage
- (void)dealloc {
    delete _pixels;
    [super dealloc];
}
@end

namespace graphics {

Pixels::~Pixels() {
    if (surface) cairo_surface_destroy(surface);
    if (owned) free(data);
}

bool Pixels::make(unsigned char* given, size_t w, size_t h, size_t row) {
    width = w;
    height = h;
    bytes_per_row = row;
    owned = !given;
    data = given ? given : static_cast<unsigned char*>(calloc(h, row));
    if (!data) return false;
    surface = cairo_image_surface_create_for_data(data, CAIRO_FORMAT_ARGB32, static_cast<int>(w),
                                                  static_cast<int>(h), static_cast<int>(row));
    return cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
}

const Pixels* pixels_of(CGImageRef image) {
    return reinterpret_cast<CGPixelImage*>(image)->_pixels;
}

CGImageRef make_image(Pixels* pixels) {
    CGPixelImage* image = [[CGPixelImage alloc] init];
    image->_pixels = pixels;
    return (CGImageRef)image;
}

} // namespace graphics

void CGImageRelease(CGImageRef image) {
    [(id)image release];
}
