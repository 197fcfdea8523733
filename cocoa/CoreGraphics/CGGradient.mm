#include "Context.h"

#include <algorithm>
#include <vector>

struct CGGradientStop {
    double location;
    graphics::Color color;
};

@interface CGColorGradient : NSObject {
  @public
    std::vector<CGGradientStop>* _stops;
}
@end

@implementation CGColorGradient
- (void)dealloc {
    delete _stops;
    [super dealloc];
}
@end

namespace graphics {

cairo_pattern_t* pattern_of(CGGradientRef gradient, CGPoint start, CGPoint end, double alpha) {
    cairo_pattern_t* pattern = cairo_pattern_create_linear(start.x, start.y, end.x, end.y);
    for (const auto& [at, color] : *reinterpret_cast<CGColorGradient*>(gradient)->_stops)
        cairo_pattern_add_color_stop_rgba(pattern, at, color.blue, color.green, color.red,
                                          color.alpha * alpha);
    return pattern;
}

} // namespace graphics

CGGradientRef CGGradientCreateWithColorComponents(CGColorSpaceRef space, const CGFloat* components,
                                                  const CGFloat* locations, size_t count) {
    if (!space || !components || count == 0) return nullptr;
    auto* stops = new std::vector<CGGradientStop>;
    for (size_t i = 0; i < count; ++i) {
        const CGFloat* c = components + 4 * i;
        const double even = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
        stops->push_back(
            {std::clamp(locations ? locations[i] : even, 0.0, 1.0), {c[0], c[1], c[2], c[3]}});
    }
    CGColorGradient* gradient = [[CGColorGradient alloc] init];
    gradient->_stops = stops;
    return (CGGradientRef)gradient;
}

CGGradientRef CGGradientRetain(CGGradientRef gradient) {
    return (CGGradientRef)[(id)gradient retain];
}

void CGGradientRelease(CGGradientRef gradient) {
    [(id)gradient release];
}
