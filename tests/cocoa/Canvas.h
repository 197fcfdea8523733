// A bitmap context over a buffer of its own, read pixel by pixel.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Red, green, blue, alpha, premultiplied, as 0xRRGGBBAA.
using Pixel = uint32_t;

class Canvas {
  public:
    Canvas(int width, int height) : _width(width), _bytes(4 * width * height) {
        CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
        _context = CGBitmapContextCreate(_bytes.data(), width, height, 8, 4 * width, space,
                                         kCGImageAlphaPremultipliedLast);
        CGColorSpaceRelease(space);
    }
    ~Canvas() { CGContextRelease(_context); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CGContextRef context() const { return _context; }
    int width() const { return _width; }
    int height() const { return static_cast<int>(_bytes.size()) / 4 / _width; }
    const std::vector<uint8_t>& bytes() const { return _bytes; }

    // Row 0 is the top one.
    Pixel at(int x, int row) const {
        const uint8_t* p = &_bytes[4 * (row * _width + x)];
        return Pixel(p[0]) << 24 | p[1] << 16 | p[2] << 8 | p[3];
    }
    int alpha(int x, int row) const { return at(x, row) & 0xFF; }

    // Top left origin and y downwards, as in a flipped view.
    Canvas& flip() {
        CGContextTranslateCTM(_context, 0, height());
        CGContextScaleCTM(_context, 1, -1);
        return *this;
    }

    // The rows, '#' for a pixel that is all there, '.' for one that is not, '+' for one in between.
    std::string picture() const {
        std::string rows;
        for (int row = 0; row < height(); ++row) {
            for (int x = 0; x < _width; ++x)
                rows += alpha(x, row) == 255 ? '#' : alpha(x, row) == 0 ? '.' : '+';
            rows += '\n';
        }
        return rows;
    }

  private:
    int _width;
    std::vector<uint8_t> _bytes;
    CGContextRef _context;
};
