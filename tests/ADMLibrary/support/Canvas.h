// A bitmap to draw into as into a flipped view, magnified so that edges can be told to a fraction
// of a point.

#pragma once

#include "tests/ADMLibrary/support/FakeHost.h"

#include <Cocoa/Cocoa.h>

class Canvas {
  public:
    static constexpr int kScale = 8; // pixels per point

    // In points; white at first.
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // Draws a cell as its control would.
    void draw(NSCell* cell, NSRect frame);
    void highlight(NSCell* cell, NSRect frame, bool flag);

    // The pixel that covers a point.
    Rgb at(double x, double y) const;
    // How many pixels of the rectangle have the colour.
    int count(NSRect rect, Rgb color) const;

    CGContextRef context() const { return _context; }

  private:
    int _width, _height;
    std::vector<unsigned char> _pixels;
    CGContextRef _context;
};
