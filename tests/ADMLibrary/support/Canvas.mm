#include "tests/ADMLibrary/support/Canvas.h"

Canvas::Canvas(int width, int height)
    : _width(width * kScale), _height(height * kScale),
      _pixels(static_cast<std::size_t>(_width) * _height * 4, 255) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    _context = CGBitmapContextCreate(_pixels.data(), _width, _height, 8, _width * 4, space, 1);
    CGColorSpaceRelease(space);
    CGContextTranslateCTM(_context, 0, _height);
    CGContextScaleCTM(_context, kScale, -kScale);
    [NSGraphicsContext saveGraphicsState];
    [NSGraphicsContext setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:_context
                                                                                    flipped:YES]];
}

Canvas::~Canvas() {
    [NSGraphicsContext restoreGraphicsState];
    CGContextRelease(_context);
}

Rgb Canvas::at(double x, double y) const {
    const std::size_t column = static_cast<std::size_t>(x * kScale);
    const std::size_t row = static_cast<std::size_t>(y * kScale);
    const unsigned char* pixel = &_pixels.at((row * _width + column) * 4);
    return {pixel[0], pixel[1], pixel[2]};
}

int Canvas::count(NSRect rect, Rgb color) const {
    int found = 0;
    for (double y = NSMinY(rect); y < NSMaxY(rect); y += 1.0 / kScale)
        for (double x = NSMinX(rect); x < NSMaxX(rect); x += 1.0 / kScale)
            found += at(x, y) == color;
    return found;
}

int Canvas::count(Rgb color) const {
    return count(NSMakeRect(0, 0, _width / kScale, _height / kScale), color);
}
