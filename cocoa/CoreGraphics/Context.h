// What a context is inside: cairo drawing into RGBA pixels. Cairo's own pixels are BGRA in memory;
// they hold RGBA when every colour goes in with red and blue exchanged, which is done here and in
// no other place. Pictures are RGBA throughout and are never converted.
#pragma once

#include <CoreGraphics/CGBitmapContext.h>
#include <Foundation/NSObject.h>

#include <cairo.h>
#include <vector>

namespace graphics {

struct Color {
    double red, green, blue, alpha;
};

// What cairo's own graphics state does not keep, or not in this form.
struct State {
    CGAffineTransform ctm = CGAffineTransformIdentity;
    Color fill = {0, 0, 0, 1}, stroke = {0, 0, 0, 1};
    double alpha = 1;
    bool drawable = true; // the transform can be inverted
};

// A picture or a context's memory.
struct Pixels {
    unsigned char* data = nullptr;
    size_t width = 0, height = 0, bytes_per_row = 0;
    bool owned = false;
    cairo_surface_t* surface = nullptr;

    Pixels() = default;
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;
    ~Pixels();

    // Over `given`, or over cleared memory of its own. False when that cannot be.
    bool make(unsigned char* given, size_t w, size_t h, size_t row);
};

struct Context {
    Pixels pixels;
    cairo_t* cairo = nullptr;
    CGColorSpaceRef space = nullptr;
    std::vector<State> states = {State()};

    ~Context();
    State& state() { return states.back(); }
    // Gives the state's transform to cairo.
    void apply_ctm();
    // The next fill, stroke or paint draws in this colour.
    void use(Color color);
    // Coordinates that cairo can hold.
    CGPoint safe(double x, double y) const;
    void add_rect(CGRect rect);
};

// Null for a null reference.
Context* context_of(CGContextRef reference);
const Pixels* pixels_of(CGImageRef image);
// Takes the pixels over; null when `pixels` is null.
CGImageRef make_image(Pixels* pixels);
cairo_pattern_t* pattern_of(CGGradientRef gradient, CGPoint start, CGPoint end, double alpha);

} // namespace graphics
