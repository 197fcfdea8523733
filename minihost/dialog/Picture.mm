#include "minihost/dialog/Picture.h"

#include "minihost/dialog/AutoreleasePool.h"

#include <AppKit/NSDisplayStandIn.h>
#include <cairo.h>
#include <cstdint>
#include <memory>
#include <stdexcept>

namespace minihost {

namespace {

cairo_status_t append(void* out, const unsigned char* data, unsigned length) {
    static_cast<std::string*>(out)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

Picture render_view(NSView* view, double scale) {
    const AutoreleasePool pool;
    NSPicture picture = NSRenderView(view, scale);
    return {picture.width, picture.height, std::move(picture.rgba)};
}

std::string encode_png(const Picture& picture) {
    const std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width, picture.height),
        cairo_surface_destroy);
    unsigned char* rows = cairo_image_surface_get_data(surface.get());
    if (!rows) throw std::runtime_error("no memory for the picture");
    const int stride = cairo_image_surface_get_stride(surface.get());
    const unsigned char* from = picture.rgba.data();
    for (int y = 0; y < picture.height; ++y) {
        auto* to = reinterpret_cast<std::uint32_t*>(rows + static_cast<std::ptrdiff_t>(y) * stride);
        for (int x = 0; x < picture.width; ++x, from += 4)
            to[x] = static_cast<std::uint32_t>(from[3]) << 24 |
                    static_cast<std::uint32_t>(from[0]) << 16 |
                    static_cast<std::uint32_t>(from[1]) << 8 | from[2];
    }
    cairo_surface_mark_dirty(surface.get());
    std::string png;
    if (cairo_surface_write_to_png_stream(surface.get(), append, &png) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error("the picture cannot be encoded");
    return png;
}

} // namespace minihost
