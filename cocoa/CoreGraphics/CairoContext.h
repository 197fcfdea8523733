// What a CGContext is inside: cairo, drawing into RGBA pixels. Cairo's own pixels are BGRA in
// memory; they hold RGBA because red and blue of every colour are exchanged on the way in. Pictures
// are RGBA throughout and are never converted.
#pragma once

#include <CoreGraphics/CGBitmapContext.h>
#include <Foundation/NSObject.h>

#include <cairo.h>
#include <vector>

namespace graphics {

// From 0 to 1; NaN is 0.
double clamped(double component);

struct Color {
    double red, green, blue, alpha;
};

// The part of the graphics state that cairo does not keep, or not in this form.
struct State {
    // x' = a x + c y + tx, y' = b x + d y + ty
    struct {
        double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;
    } ctm;
    Color fill = {0, 0, 0, 1}, stroke = {0, 0, 0, 1};
    bool drawable = true; // the transform can be inverted
};

// An image's or a context's memory.
struct Pixels {
    unsigned char* data = nullptr;
    size_t width = 0, height = 0, bytes_per_row = 0;
    bool owned = false;
    cairo_surface_t* surface = nullptr;

    Pixels() = default;
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;
    ~Pixels();

    // Over `given`, or over cleared memory of its own. False when memory is out.
    bool make(unsigned char* given, size_t w, size_t h, size_t row);
};

struct CairoContext {
    Pixels pixels;
    cairo_t* cairo = nullptr;
    std::vector<State> states = {State()};

    ~CairoContext();
    State& state() { return states.back(); }
    // Passes the state's transform to cairo.
    void apply_ctm();
    // The colour of the next fill or stroke.
    void use(Color color);
    // Coordinates that cairo can hold.
    CGPoint safe(double x, double y) const;
    void add_rect(CGRect rect);
};

CairoContext* context_of(CGContextRef reference); // null for a null reference
const Pixels* pixels_of(CGImageRef image);
// Takes ownership of the pixels.
CGImageRef make_image(Pixels* pixels);

} // namespace graphics
