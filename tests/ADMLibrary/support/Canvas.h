// A bitmap to draw into like a flipped view, magnified so that tests see edges to a fraction of a
// point. White at first; while it exists it is the current graphics context.

#pragma once

#include "tests/ADMLibrary/support/FakeHost.h"

#include <Cocoa/Cocoa.h>

class Canvas {
  public:
    static constexpr int kScale = 8; // pixels per point
    static constexpr Rgb kWhite = {255, 255, 255};

    Canvas(int width, int height); // points
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    Rgb at(double x, double y) const; // the pixel that covers the point
    // The number of pixels of the colour in the rectangle, or in the whole canvas.
    int count(NSRect rect, Rgb color) const;
    int count(Rgb color) const;

    CGContextRef context() const { return _context; }

  private:
    int _width, _height;
    std::vector<unsigned char> _pixels;
    CGContextRef _context;
};
