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
    CGContextStrokeRect(c, CGRectMake(1.5, 1.5, 3, 3));
    EXPECT_EQ(canvas.picture(), ".......\n.####..\n.#..#..\n.#..#..\n.####..\n.......\n");
}

TEST_F(Paths, PolygonsAreFilled) {
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
    EXPECT_EQ(canvas.picture(), "....\n....\n....\n....\n");
    CGContextFillRect(nullptr, CGRectMake(0, 0, 1, 1));
}

TEST_F(Paths, LinesHaveTheirWidth) {
    Canvas canvas(12, 3);
    CGContextRef c = canvas.flip().context();
    CGContextSetLineWidth(c, 2);
    CGContextSetLineWidth(c, 0); // changes nothing
    CGContextSetLineWidth(c, -3);
    CGContextMoveToPoint(c, 2, 1.5);
    CGContextAddLineToPoint(c, 10, 1.5);
    CGContextStrokePath(c);
    EXPECT_EQ(canvas.picture(), "..++++++++..\n..########..\n..++++++++..\n");
    EXPECT_NEAR(canvas.alpha(4, 0), 128, 1);
}

TEST_F(Paths, EllipsesAreOutlines) {
    Canvas canvas(40, 40);
    CGContextStrokeEllipseInRect(canvas.context(), CGRectMake(4, 8, 30, 20));
    double sum = 0;
    for (int i = 0; i < 1600; ++i) sum += canvas.alpha(i % 40, i / 40) / 255.0;
    EXPECT_NEAR(sum, 79.3, 1); // the circumference
    EXPECT_GT(canvas.alpha(4, 22), 100);
    EXPECT_EQ(canvas.alpha(19, 22), 0);
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
