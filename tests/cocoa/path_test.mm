// What paths cover, pixel by pixel, with antialiasing and without.
#include "Canvas.h"
#include "Pool.h"

#include <cmath>

namespace {

class Paths : public PoolTest {};

TEST_F(Paths, RectanglesCoverExactly) {
    Canvas canvas(6, 4);
    CGContextFillRect(canvas.flip().context(), CGRectMake(1, 1, 3, 2));
    EXPECT_EQ(canvas.picture(), "......\n.###..\n.###..\n......\n");
    CGContextFillRect(canvas.context(), CGRectMake(6, 4, -1, -2)); // the other way round
    EXPECT_EQ(canvas.picture(), "......\n.###..\n.###.#\n.....#\n");
    CGContextFillRect(canvas.context(), CGRectMake(0.25, 0, 0.5, 0.5)); // a quarter of a pixel
    EXPECT_EQ(canvas.at(0, 0), 0x00000040u);
}

TEST_F(Paths, WithoutAntialiasingThePixelsCentreDecides) {
    const struct {
        CGRect rect;
        const char* picture;
    } cases[] = {
        {{{0.4, 0}, {1.2, 1}}, "##...\n.....\n"}, // 0.4 to 1.6 holds the centres 0.5 and 1.5
        {{{0.6, 0}, {1.2, 1}}, ".#...\n.....\n"}, // 0.6 to 1.8
        {{{0.5, 0.5}, {2, 1}}, "##...\n.....\n"}, // centres on edges
        {{{0, 0.6}, {5, 0.8}}, ".....\n.....\n"},
    };
    for (const auto& c : cases) {
        Canvas canvas(5, 2);
        CGContextSetShouldAntialias(canvas.flip().context(), false);
        CGContextFillRect(canvas.context(), c.rect);
        EXPECT_EQ(canvas.picture(), c.picture) << c.rect.origin.x << ' ' << c.rect.origin.y;
    }
}

TEST_F(Paths, LinesAtWholeCoordinatesTakeThePixelsBeforeThem) {
    Canvas canvas(6, 5);
    CGContextRef c = canvas.flip().context();
    CGContextSetShouldAntialias(c, false);
    CGContextMoveToPoint(c, 1, 2);
    CGContextAddLineToPoint(c, 4, 2); // across: row 1
    CGContextMoveToPoint(c, 6, 1);
    CGContextAddLineToPoint(c, 6, 4); // down: column 5
    CGContextStrokePath(c);
    EXPECT_EQ(canvas.picture(), "......\n.###.#\n.....#\n.....#\n......\n");
    // With antialiasing it is half in each of its neighbours.
    CGContextSetShouldAntialias(c, true);
    CGContextClearRect(c, CGRectMake(0, 0, 6, 5));
    CGContextMoveToPoint(c, 1, 2);
    CGContextAddLineToPoint(c, 4, 2);
    CGContextStrokePath(c);
    EXPECT_EQ(canvas.picture(), "......\n.+++..\n.+++..\n......\n......\n");
    EXPECT_NEAR(canvas.alpha(2, 1), 128, 1);
    EXPECT_NEAR(canvas.alpha(2, 2), 128, 1);
}

TEST_F(Paths, StrokedRectanglesAreOutlines) {
    Canvas canvas(7, 6);
    CGContextRef c = canvas.flip().context();
    CGContextSetShouldAntialias(c, false);
    CGContextStrokeRect(c, CGRectMake(1, 1, 5, 4));
    EXPECT_EQ(canvas.picture(), "######.\n#....#.\n#....#.\n#....#.\n######.\n.......\n");
    CGContextClearRect(c, CGRectMake(0, 0, 7, 6));
    CGContextSetShouldAntialias(c, true);
    CGContextStrokeRectWithWidth(c, CGRectMake(2, 2, 3, 2), 2);
    EXPECT_EQ(canvas.picture(), ".......\n.#####.\n.#####.\n.#####.\n.#####.\n.......\n");
    CGContextClearRect(c, CGRectMake(0, 0, 7, 6));
    CGContextStrokeRect(c, CGRectMake(1.5, 1.5, 3, 3)); // the width is 1 again
    EXPECT_EQ(canvas.picture(), ".......\n.####..\n.#..#..\n.#..#..\n.####..\n.......\n");
}

TEST_F(Paths, PolygonsAreFilledByTheirRule) {
    Canvas canvas(8, 8);
    CGContextRef c = canvas.flip().context();
    CGContextSetShouldAntialias(c, false);
    CGContextMoveToPoint(c, 0, 0); // a triangle, left open: x < 8 - y
    CGContextAddLineToPoint(c, 8, 0);
    CGContextAddLineToPoint(c, 0, 8);
    CGContextFillPath(c);
    for (int i = 0; i < 64; ++i) {
        const int x = i % 8, row = i / 8;
        if (x + row == 7) continue; // centres on the slanted edge go either way
        EXPECT_EQ(canvas.alpha(x, row), x + row < 7 ? 255 : 0) << x << ' ' << row;
    }

    // Two squares wound alike: the hole is there by the even-odd rule alone.
    for (const bool even_odd : {false, true}) {
        CGContextClearRect(c, CGRectMake(0, 0, 8, 8));
        CGContextAddRect(c, CGRectMake(0, 0, 8, 8));
        CGContextAddRect(c, CGRectMake(2, 2, 4, 4));
        CGContextDrawPath(c, even_odd ? kCGPathEOFill : kCGPathFill);
        EXPECT_EQ(canvas.alpha(1, 4), 255);
        EXPECT_EQ(canvas.alpha(4, 4), even_odd ? 0 : 255);
    }
}

TEST_F(Paths, OfNothingDrawNothing) {
    Canvas canvas(4, 4);
    CGContextRef c = canvas.context();
    CGContextFillPath(c);
    CGContextAddLineToPoint(c, 4, 4); // no current point
    CGContextClosePath(c);
    CGContextStrokePath(c);
    CGContextMoveToPoint(c, 2, 2); // a single point
    CGContextClosePath(c);
    CGContextFillPath(c);
    CGContextFillRect(c, CGRectMake(1, 1, 0, 2));
    CGContextFillRect(c, CGRectNull);
    EXPECT_EQ(canvas.picture(), "....\n....\n....\n....\n");
    CGContextFillRect(nullptr, CGRectMake(0, 0, 1, 1));
}

TEST_F(Paths, CirclesAndArcsHaveTheirArea) {
    const auto area = [](auto draw) {
        Canvas canvas(40, 40);
        draw(canvas.context());
        double sum = 0;
        for (int i = 0; i < 1600; ++i) sum += canvas.alpha(i % 40, i / 40) / 255.0;
        return sum;
    };
    const CGRect box = CGRectMake(4, 8, 30, 20);
    EXPECT_NEAR(area([&](CGContextRef c) { CGContextFillEllipseInRect(c, box); }), M_PI * 15 * 10,
                2);
    const auto sector = [&](double from, double to, int clockwise) {
        return area([&](CGContextRef c) {
            CGContextMoveToPoint(c, 20, 20);
            CGContextAddArc(c, 20, 20, 16, from, to, clockwise);
            CGContextFillPath(c);
        });
    };
    const double disc = M_PI * 16 * 16;
    EXPECT_NEAR(sector(0, M_PI_2, 0), disc / 4, 2);
    EXPECT_NEAR(sector(0, M_PI_2, 1), disc * 3 / 4, 2);
    EXPECT_NEAR(sector(1, 1 + 2 * M_PI, 0), disc, 2);
    EXPECT_NEAR(sector(0, 1e9, 0), disc, 2); // once round at most
    EXPECT_NEAR(sector(0, INFINITY, 0), 0, 0);
    Canvas canvas(40, 40);
    CGContextMoveToPoint(canvas.context(), 20, 20);
    CGContextAddArc(canvas.context(), 20, 20, 16, 0, M_PI_2, 0); // up and to the right
    CGContextFillPath(canvas.context());
    EXPECT_EQ(canvas.alpha(25, 14), 255);
    EXPECT_EQ(canvas.alpha(25, 25), 0);
}

TEST_F(Paths, LinesHaveWidthCapsAndDashes) {
    Canvas canvas(12, 3);
    CGContextRef c = canvas.flip().context();
    const auto line = [&](double from, double to) {
        CGContextClearRect(c, CGRectMake(0, 0, 12, 3));
        CGContextMoveToPoint(c, from, 1.5);
        CGContextAddLineToPoint(c, to, 1.5);
        CGContextStrokePath(c);
        return canvas.picture().substr(13, 12); // the middle row
    };
    EXPECT_EQ(line(2, 10), "..########..");
    CGContextSetLineCap(c, kCGLineCapSquare);
    CGContextSetLineWidth(c, 2);
    EXPECT_EQ(line(2, 10), ".##########.");
    CGContextSetLineCap(c, kCGLineCapButt);
    CGContextSetLineWidth(c, 0); // changes nothing
    CGContextSetLineWidth(c, -3);
    EXPECT_EQ(line(2, 10), "..########..");
    EXPECT_NEAR(canvas.alpha(4, 0), 128, 1);
    const CGFloat dash[] = {3, 1}, bad[] = {1, -1}, none[] = {0, 0};
    CGContextSetLineDash(c, 0, dash, 2);
    EXPECT_EQ(line(0, 12), "###.###.###.");
    CGContextSetLineDash(c, 1, dash, 2);
    EXPECT_EQ(line(0, 12), "##.###.###.#");
    CGContextSetLineDash(c, 0, bad, 2);
    EXPECT_EQ(line(0, 12), "############");
    CGContextSetLineDash(c, 0, none, 2);
    EXPECT_EQ(line(0, 12), "############");
}

TEST_F(Paths, FarAwayAndEndlessCoordinatesDoNoHarm) {
    const double values[] = {1e300, -1e300, 1e9, -1e9, INFINITY, -INFINITY, NAN};
    for (const double v : values) {
        Canvas canvas(4, 4);
        CGContextRef c = canvas.context();
        CGContextMoveToPoint(c, v, 1);
        CGContextAddLineToPoint(c, 2, v);
        CGContextAddCurveToPoint(c, v, v, 1, 1, -v, 3);
        CGContextStrokePath(c);
        CGContextClipToRect(c, CGRectMake(v, 0, 2, 2));
    }
    Canvas canvas(4, 4);
    CGContextFillRect(canvas.context(), CGRectMake(-1e12, -1e12, 2e12, 1e12 + 2)); // below y = 2
    EXPECT_EQ(canvas.picture(), "....\n....\n####\n####\n");
}

} // namespace
