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

TEST_F(Drawing, ColorsClampConvertAndCompare) {
    NSColor* rgb = [NSColor colorWithDeviceRed:0.25 green:2 blue:-1 alpha:0.5];
    EXPECT_EQ([rgb redComponent], 0.25);
    EXPECT_EQ([rgb greenComponent], 1);
    EXPECT_EQ([rgb blueComponent], 0);
    EXPECT_EQ([[rgb colorWithAlphaComponent:0.75] alphaComponent], 0.75);
    EXPECT_EQ([[rgb colorWithAlphaComponent:0.75] redComponent], 0.25);
    NSColor* white = [NSColor colorWithDeviceWhite:0.8 alpha:1];
    EXPECT_EQ([white whiteComponent], 0.8);
    EXPECT_EQ(raised([&] { [white redComponent]; }), "NSInvalidArgumentException");
    EXPECT_EQ(raised([&] { [rgb whiteComponent]; }), "NSInvalidArgumentException");
    EXPECT_EQ([[white colorUsingColorSpaceName:NSDeviceRGBColorSpace] blueComponent], 0.8);
    EXPECT_EQ([rgb colorUsingColorSpaceName:NSDeviceWhiteColorSpace], nil);
    EXPECT_EQ([rgb colorUsingColorSpaceName:@"of another world"], nil);
    EXPECT_TRUE([white isEqual:[NSColor colorWithDeviceWhite:0.8 alpha:1]]);
    EXPECT_FALSE([white isEqual:[NSColor colorWithCalibratedWhite:0.8 alpha:1]]);
    EXPECT_EQ([[NSColor clearColor] alphaComponent], 0);
}

TEST_F(Drawing, SetChoosesFillAndStroke) {
    [[NSColor redColor] set];
    [[NSColor blueColor] setStroke];
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
    NSEraseRect(NSMakeRect(1, 1, 1, 1));
    EXPECT_EQ(_canvas.at(1, 1), 0xFFFFFFFFu);
    NSRectFillUsingOperation(NSMakeRect(0, 0, 10, 8), NSCompositeClear);
    [[NSColor blackColor] set];
    NSFrameRect(NSMakeRect(1, 1, 5, 4));
    EXPECT_EQ(picture(7, 6), ".......\n.#####.\n.#...#.\n.#...#.\n.#####.\n.......\n");
    clear();
    NSFrameRectWithWidth(NSMakeRect(0, 0, 3, 5), 2); // no wider than there is room
    EXPECT_EQ(picture(4, 6), "###.\n###.\n###.\n###.\n###.\n....\n");
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
    EXPECT_TRUE([outer shouldAntialias]);
    [NSGraphicsContext restoreGraphicsState]; // one too many
    [outer restoreGraphicsState];
    NSRectFill(NSMakeRect(0, 0, 2.5, 1)); // neither clipped nor without antialiasing
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

TEST_F(Drawing, PathsKnowTheirElements) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    EXPECT_EQ(raised([&] { [path lineToPoint:NSZeroPoint]; }), "NSGenericException");
    EXPECT_EQ(raised([&] { [path currentPoint]; }), "NSGenericException");
    [path closePath];
    EXPECT_TRUE([path isEmpty]);
    [path moveToPoint:NSMakePoint(1, 2)];
    [path lineToPoint:NSMakePoint(5, 2)];
    [path curveToPoint:NSMakePoint(1, 6)
         controlPoint1:NSMakePoint(9, 3)
         controlPoint2:NSMakePoint(3, 4)];
    EXPECT_TRUE(NSEqualPoints([path currentPoint], NSMakePoint(1, 6)));
    [path closePath];
    EXPECT_TRUE(NSEqualPoints([path currentPoint], NSMakePoint(1, 2)));
    NSPoint points[3];
    EXPECT_EQ([path elementAtIndex:2 associatedPoints:points],
              (NSBezierPathElement)NSCurveToBezierPathElement);
    EXPECT_TRUE(NSEqualPoints(points[1], NSMakePoint(3, 4)));
    EXPECT_TRUE(NSEqualRects([path controlPointBounds], NSMakeRect(1, 2, 8, 4)));
    NSBezierPath* copy = [[path copy] autorelease];
    [path appendBezierPath:path];
    EXPECT_EQ([path elementCount], 8);
    EXPECT_EQ([copy elementCount], 4);
    EXPECT_EQ(raised([&] { [copy elementAtIndex:4 associatedPoints:nullptr]; }),
              "NSRangeException");
}

TEST_F(Drawing, PathsFillStrokeAndClip) {
    NSBezierPath* ring = [NSBezierPath bezierPathWithRect:NSMakeRect(0, 0, 6, 6)];
    [ring appendBezierPathWithRect:NSMakeRect(2, 2, 2, 2)];
    [ring setWindingRule:NSEvenOddWindingRule];
    [NSGraphicsContext saveGraphicsState];
    [ring addClip];
    [NSBezierPath fillRect:NSMakeRect(0, 1, 10, 2)];
    [NSGraphicsContext restoreGraphicsState];
    EXPECT_EQ(picture(7, 4), ".......\n######.\n##..##.\n.......\n");
    clear();
    CGContextScaleCTM(_canvas.context(), 2, 2);
    NSBezierPath* hairline = [NSBezierPath bezierPath];
    [hairline setLineWidth:0];
    [hairline moveToPoint:NSMakePoint(0, 0.25)];
    [hairline lineToPoint:NSMakePoint(3, 0.25)];
    [hairline stroke];
    EXPECT_EQ(picture(7, 2), "######.\n.......\n");
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
    NSBezierPath* wedge = [NSBezierPath bezierPath];
    [wedge moveToPoint:NSMakePoint(5, 4)];
    [wedge appendBezierPathWithArcWithCenter:NSMakePoint(5, 4) radius:4 startAngle:0 endAngle:90];
    EXPECT_NEAR(area(wedge), M_PI * 4, 0.3);
    EXPECT_EQ(_canvas.alpha(6, 5), 255); // towards y, which is down here
    EXPECT_EQ(_canvas.alpha(6, 2), 0);
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
    EXPECT_EQ([[NSGradient alloc] initWithColors:[NSArray arrayWithObject:[NSColor redColor]]],
              nil);
}

} // namespace
