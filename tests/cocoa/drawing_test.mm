// AppKit's drawing: colours, contexts, rectangles, paths and gradients, pixel by pixel.
#include "Canvas.h"
#include "Pool.h"

#include <AppKit/NSBezierPath.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSGradient.h>
#include <AppKit/NSGraphicsContext.h>

#include <cmath>

namespace {

// Draws into a flipped canvas through the current graphics context.
class Drawing : public PoolTest {
  protected:
    Drawing() : _canvas(10, 8) {
        _canvas.flip();
        [NSGraphicsContext
            setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:_canvas.context()
                                                                         flipped:YES]];
    }
    ~Drawing() override { [NSGraphicsContext setCurrentContext:nil]; }

    NSGraphicsContext* graphics() { return [NSGraphicsContext currentContext]; }
    // The canvas's rows in the middle of its `width` columns and `height` rows.
    std::string picture(int width, int height) {
        std::string rows;
        for (int row = 0; row < height; ++row)
            rows += _canvas.picture().substr(row * 11, width) + '\n';
        return rows;
    }
    void clear() { CGContextClearRect(_canvas.context(), CGRectMake(0, 0, 10, 8)); }

    Canvas _canvas;
};

TEST_F(Drawing, ColorsClampAndCompare) {
    NSColor* color = [NSColor colorWithDeviceRed:0.25 green:2 blue:-1 alpha:0.5];
    EXPECT_EQ([[color colorWithAlphaComponent:0.75] alphaComponent], 0.75);
    [[color colorWithAlphaComponent:7] set];
    NSRectFill(NSMakeRect(0, 0, 1, 1));
    EXPECT_EQ(_canvas.at(0, 0), 0x40FF00FFu);
    EXPECT_TRUE([[NSColor whiteColor] isEqual:[NSColor colorWithDeviceWhite:1 alpha:1]]);
    EXPECT_FALSE([[NSColor whiteColor] isEqual:[NSColor colorWithDeviceWhite:1 alpha:0.5]]);
    EXPECT_FALSE([[NSColor whiteColor] isEqual:[NSColor blackColor]]);
}

TEST_F(Drawing, SetChoosesFillAndStroke) {
    [[NSColor colorWithDeviceRed:1 green:0 blue:0 alpha:1] set];
    [[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1] setStroke];
    CGContextFillRect(_canvas.context(), CGRectMake(0, 0, 1, 1));
    CGContextStrokeRect(_canvas.context(), CGRectMake(2.5, 2.5, 3, 3));
    EXPECT_EQ(_canvas.at(0, 0), 0xFF0000FFu);
    EXPECT_EQ(_canvas.at(2, 2), 0x0000FFFFu);
    [NSGraphicsContext setCurrentContext:nil];
    [[NSColor whiteColor] set]; // into nothing
    NSRectFill(NSMakeRect(0, 0, 10, 8));
    EXPECT_EQ(_canvas.at(0, 0), 0xFF0000FFu);
}

TEST_F(Drawing, RectanglesReplaceOrMix) {
    [[NSColor whiteColor] set];
    NSRectFill(NSMakeRect(0, 0, 10, 8));
    [[NSColor colorWithDeviceRed:0 green:0 blue:0 alpha:0.2] set];
    NSRectFill(NSMakeRect(1, 1, 2, 2));
    NSRectFillUsingOperation(NSMakeRect(4, 1, 2, 2), NSCompositeSourceOver);
    EXPECT_EQ(_canvas.at(1, 1), 0x00000033u);
    EXPECT_EQ(_canvas.at(4, 1), 0xCCCCCCFFu);
    clear();
    [[NSColor blackColor] set];
    NSFrameRect(NSMakeRect(1, 1, 5, 4));
    EXPECT_EQ(picture(7, 6), ".......\n.#####.\n.#...#.\n.#...#.\n.#####.\n.......\n");
}

TEST_F(Drawing, StateIsSavedAndRestored) {
    NSGraphicsContext* outer = graphics();
    Canvas other(2, 2);
    [NSGraphicsContext saveGraphicsState];
    [outer setShouldAntialias:NO];
    NSRectClip(NSMakeRect(0, 0, 1, 1));
    [NSGraphicsContext
        setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:other.context()
                                                                     flipped:NO]];
    EXPECT_FALSE([graphics() isFlipped]);
    EXPECT_EQ([graphics() graphicsPort], other.context());
    [NSGraphicsContext restoreGraphicsState];
    EXPECT_EQ(graphics(), outer);
    EXPECT_TRUE([outer isFlipped]);
    [NSGraphicsContext restoreGraphicsState]; // one too many
    NSRectFill(NSMakeRect(0, 0, 2.5, 1));     // neither clipped nor without antialiasing
    EXPECT_EQ(picture(4, 1), "##+.\n");
}

TEST_F(Drawing, AButtonsLinesLandOnTheirPixels) {
    [graphics() setShouldAntialias:NO];
    NSBezierPath* bottom = [NSBezierPath bezierPath];
    [bottom moveToPoint:NSMakePoint(0, 8)]; // along the lower edge of a frame 8 high: its last row
    [bottom lineToPoint:NSMakePoint(10, 8)];
    [bottom stroke];
    EXPECT_EQ(_canvas.picture().substr(6 * 11), "..........\n##########\n");
    clear();
    [[NSBezierPath bezierPathWithRect:NSMakeRect(1, 1, 8, 7)] stroke];
    EXPECT_EQ(picture(10, 8), "#########.\n#.......#.\n#.......#.\n#.......#.\n#.......#.\n"
                              "#.......#.\n#.......#.\n#########.\n");
}

TEST_F(Drawing, PathsNeedACurrentPointAndHaveBounds) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    EXPECT_EQ(raised([&] { [path lineToPoint:NSZeroPoint]; }), "NSGenericException");
    [path closePath];
    EXPECT_TRUE([path isEmpty]);
    EXPECT_TRUE(NSIsEmptyRect([path controlPointBounds]));
    [path moveToPoint:NSMakePoint(1, 2)];
    [path lineToPoint:NSMakePoint(5, 6)];
    const NSRect bounds = [path controlPointBounds];
    EXPECT_TRUE(NSEqualPoints(bounds.origin, NSMakePoint(1, 2)));
    EXPECT_TRUE(NSEqualSizes(bounds.size, NSMakeSize(4, 4)));
}

TEST_F(Drawing, PathsClip) {
    NSBezierPath* triangle = [NSBezierPath bezierPath];
    [triangle moveToPoint:NSMakePoint(0, 0)];
    [triangle lineToPoint:NSMakePoint(3.5, 0)];
    [triangle lineToPoint:NSMakePoint(0, 3.5)];
    [NSGraphicsContext saveGraphicsState];
    [graphics() setShouldAntialias:NO];
    [triangle addClip];
    NSRectFill(NSMakeRect(0, 1, 10, 2));
    [NSGraphicsContext restoreGraphicsState];
    EXPECT_EQ(picture(5, 4), ".....\n##...\n#....\n.....\n");
}

TEST_F(Drawing, OvalsAndRoundCornersHaveTheirArea) {
    const auto area = [&](NSBezierPath* path) {
        clear();
        [path fill];
        double sum = 0;
        for (int i = 0; i < 80; ++i) sum += _canvas.alpha(i % 10, i / 10) / 255.0;
        return sum;
    };
    const NSRect rect = NSMakeRect(1, 1, 8, 6);
    EXPECT_NEAR(area([NSBezierPath bezierPathWithOvalInRect:rect]), M_PI * 12, 0.3);
    EXPECT_NEAR(area([NSBezierPath bezierPathWithRoundedRect:rect xRadius:2 yRadius:2]),
                48 - (4 - M_PI) * 4, 0.3);
    EXPECT_NEAR(area([NSBezierPath bezierPathWithRoundedRect:rect xRadius:0 yRadius:2]), 48, 0);
    EXPECT_NEAR(area([NSBezierPath bezierPathWithRoundedRect:rect xRadius:99 yRadius:99]),
                M_PI * 12, 0.3); // no more than an oval
}

TEST_F(Drawing, GradientsFollowTheirAngle) {
    NSGradient* gradient =
        [[[NSGradient alloc] initWithStartingColor:[NSColor whiteColor]
                                       endingColor:[NSColor blackColor]] autorelease];
    const struct {
        double angle;
        int bright_x, bright_row, dark_x, dark_row;
    } cases[] = {{0, 0, 4, 9, 4},   {90, 5, 0, 5, 7}, // from the smaller y: the top, when flipped
                 {180, 9, 4, 0, 4}, {-90, 5, 7, 5, 0}, {45, 0, 0, 9, 7}, {360 + 225, 9, 7, 0, 0}};
    for (const auto& c : cases) {
        clear();
        [gradient drawInRect:NSMakeRect(0, 0, 10, 8) angle:c.angle];
        EXPECT_GT(_canvas.at(c.bright_x, c.bright_row) >> 24, 235u) << c.angle;
        EXPECT_LT(_canvas.at(c.dark_x, c.dark_row) >> 24, 20u) << c.angle;
        EXPECT_EQ(picture(10, 8).find_first_of(".+"), std::string::npos) << c.angle;
    }
    [gradient drawInRect:NSMakeRect(0, 0, 10, 8) angle:90];
    for (int row = 0; row < 8; ++row) // a pixel's centre is (row + 0.5) / 8 of the way
        EXPECT_NEAR(_canvas.at(3, row) >> 24, 255 * (1 - (row + 0.5) / 8), 1.5) << row;
}

TEST_F(Drawing, GradientsStayInsideTheirShape) {
    NSGradient* sheen = [[[NSGradient alloc]
        initWithStartingColor:[NSColor colorWithDeviceWhite:1 alpha:0.1]
                  endingColor:[NSColor colorWithDeviceWhite:0 alpha:0.1]] autorelease];
    [sheen drawInRect:NSMakeRect(2, 3, 1, 4) angle:90];
    EXPECT_EQ(_canvas.at(2, 4), 0x10101000u + 0x1A); // 0.625 of 0.1 of 255, alpha 0.1
    EXPECT_EQ(picture(4, 8), "....\n....\n....\n..+.\n..+.\n..+.\n..+.\n....\n");
    clear();
    [sheen drawInBezierPath:[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(0, 0, 8, 8)]
                      angle:90];
    EXPECT_EQ(_canvas.alpha(0, 0), 0);
    EXPECT_EQ(_canvas.alpha(4, 4), 0x1A);
    [sheen drawInRect:NSMakeRect(8, 0, 0, 5) angle:0];
    [sheen drawInBezierPath:[NSBezierPath bezierPath] angle:0];
    EXPECT_EQ(_canvas.alpha(8, 1), 0);
}

} // namespace
