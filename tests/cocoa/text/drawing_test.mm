// Where the ink of a text lies. "T" has its bar at the top, "." its dot at the lower left.
#include "Canvas.h"
#include "Pool.h"

#include <AppKit/AppKit.h>

#include <algorithm>
#include <climits>
#include <memory>

namespace {

class TextDrawing : public PoolTest {
  protected:
    // Draws in a context of that size, whose y goes downwards if it is flipped.
    template <typename Action>
    static Canvas& draw(Canvas& canvas, bool flipped, Action action) {
        if (flipped) canvas.flip();
        [NSGraphicsContext saveGraphicsState];
        [NSGraphicsContext
            setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:canvas.context()
                                                                         flipped:flipped]];
        action();
        [NSGraphicsContext restoreGraphicsState];
        return canvas;
    }

    static NSDictionary* attributes(double size, NSTextAlignment alignment = NSLeftTextAlignment) {
        NSMutableParagraphStyle* style =
            [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
        [style setAlignment:alignment];
        return [NSDictionary
            dictionaryWithObjectsAndKeys:[NSFont boldSystemFontOfSize:size], NSFontAttributeName,
                                         [NSColor colorWithDeviceRed:1 green:0.5 blue:0 alpha:1],
                                         NSForegroundColorAttributeName, style,
                                         NSParagraphStyleAttributeName, nil];
    }

    struct Ink {
        int left = INT_MAX, top = INT_MAX, right = -1, bottom = -1;
        long weight_above = 0, weight_below = 0; // of the box's middle
    };
    static Ink ink(const Canvas& canvas) {
        Ink box;
        for (int row = 0; row < canvas.height(); ++row)
            for (int x = 0; x < canvas.width(); ++x)
                if (canvas.alpha(x, row) > 64) {
                    box.left = std::min(box.left, x), box.right = std::max(box.right, x);
                    box.top = std::min(box.top, row), box.bottom = std::max(box.bottom, row);
                }
        for (int row = box.top; row <= box.bottom; ++row)
            for (int x = box.left; x <= box.right; ++x)
                (2 * row < box.top + box.bottom ? box.weight_above : box.weight_below) +=
                    canvas.alpha(x, row);
        return box;
    }
};

TEST_F(TextDrawing, StandsUprightInBothDirections) {
    for (const bool flipped : {false, true}) {
        Canvas canvas(60, 60);
        draw(canvas, flipped,
             [] { [@"T" drawAtPoint:NSMakePoint(10, 5) withAttributes:attributes(30)]; });
        const Ink box = ink(canvas);
        EXPECT_GT(box.weight_above, 1.3 * box.weight_below) << flipped;
        // The origin is the text's lower left corner, in a flipped context its upper left.
        EXPECT_GE(box.left, 10);
        EXPECT_LT(box.left, 14);
        const double height = [@"T" sizeWithAttributes:attributes(30)].height;
        EXPECT_GE(box.top, (flipped ? 5 : 55 - height) - 1);
        EXPECT_LE(box.bottom, (flipped ? 5 + height : 55) + 1);
    }
}

TEST_F(TextDrawing, HasItsColour) {
    Canvas canvas(40, 40);
    draw(canvas, true,
         [] { [@"\xe2\x96\x88" drawAtPoint:NSMakePoint(0, 0) withAttributes:attributes(30)]; });
    const Ink box = ink(canvas);
    EXPECT_EQ(canvas.at((box.left + box.right) / 2, (box.top + box.bottom) / 2), 0xFF8000FFu);
}

TEST_F(TextDrawing, IsTheSameAtEveryScale) {
    Canvas plain(80, 20), doubled(160, 40);
    const auto text = [] {
        [@"Scale" drawAtPoint:NSMakePoint(4, 2) withAttributes:attributes(12)];
    };
    draw(plain, true, text);
    doubled.flip();
    CGContextScaleCTM(doubled.context(), 2, 2);
    [NSGraphicsContext
        setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:doubled.context()
                                                                     flipped:YES]];
    text();
    [NSGraphicsContext setCurrentContext:nil];
    const Ink one = ink(plain), two = ink(doubled);
    EXPECT_NEAR(two.left, 2 * one.left, 2);
    EXPECT_NEAR(two.right, 2 * one.right, 2);
    EXPECT_NEAR(two.bottom, 2 * one.bottom, 2);
    EXPECT_EQ(plain.bytes(), draw(*std::make_unique<Canvas>(80, 20), true, text).bytes());
}

TEST_F(TextDrawing, IsAlignedInItsRectangle) {
    const struct {
        NSTextAlignment alignment;
        int from, to; // where the ink's left edge may be, in a rectangle from 20 to 100
    } cases[] = {{NSLeftTextAlignment, 20, 23},
                 {NSRightTextAlignment, 88, 96},
                 {NSCenterTextAlignment, 54, 60}};
    for (const auto& c : cases) {
        Canvas canvas(120, 30);
        draw(canvas, true, [&] {
            [@"T" drawInRect:NSMakeRect(20, 5, 80, 20) withAttributes:attributes(12, c.alignment)];
        });
        EXPECT_GE(ink(canvas).left, c.from) << c.alignment;
        EXPECT_LE(ink(canvas).left, c.to) << c.alignment;
    }
}

TEST_F(TextDrawing, WrapsAndLeavesOutWhatDoesNotFit) {
    NSString* words = @"alpha beta gamma delta epsilon";
    const double line = [words sizeWithAttributes:attributes(10)].height;
    Canvas one(80, 60), all(80, 60);
    // Room for a line and a half: the second line is not there in part.
    draw(one, true, [&] {
        [words drawInRect:NSMakeRect(0, 0, 60, 1.5 * line) withAttributes:attributes(10)];
    });
    EXPECT_LE(ink(one).bottom, line);
    EXPECT_LT(ink(one).right, 60);
    draw(all, true,
         [&] { [words drawInRect:NSMakeRect(0, 0, 60, 60) withAttributes:attributes(10)]; });
    EXPECT_GT(ink(all).bottom, 2 * line);
}

TEST_F(TextDrawing, DependsOnItsAttributesNotOnEarlierTexts) {
    struct Look {
        NSFont* font;
        double red, alpha;
        NSTextAlignment alignment;
        double width;
        NSString* text;
    };
    NSFont* font = [NSFont systemFontOfSize:10];
    const auto left = NSLeftTextAlignment;
    NSString* words = @"alpha beta gamma";
    const Look looks[] = {
        {font, 1, 1, left, 60, words},
        {[NSFont systemFontOfSize:10.5], 1, 1, left, 60, words},
        {[NSFont boldSystemFontOfSize:10], 1, 1, left, 60, words},
        {font, 0.5, 1, left, 60, words},
        {font, 1, 0.5, left, 60, words},
        {font, 1, 1, NSRightTextAlignment, 60, words},
        {font, 1, 1, left, 40, words},
        {font, 1, 1, left, 60, @"alpha beta gamme"},
    };
    const auto picture = [&](const Look& look) {
        NSMutableParagraphStyle* style = [[[NSMutableParagraphStyle alloc] init] autorelease];
        [style setAlignment:look.alignment];
        NSColor* color = [NSColor colorWithDeviceRed:look.red green:0 blue:0 alpha:look.alpha];
        NSDictionary* attributes =
            [NSDictionary dictionaryWithObjectsAndKeys:look.font, NSFontAttributeName, color,
                                                       NSForegroundColorAttributeName, style,
                                                       NSParagraphStyleAttributeName, nil];
        Canvas canvas(80, 60);
        draw(canvas, true, [&] {
            [look.text drawInRect:NSMakeRect(0, 0, look.width, 60) withAttributes:attributes];
        });
        return canvas.bytes();
    };
    std::vector<std::vector<uint8_t>> pictures;
    for (const Look& look : looks) {
        const auto made = picture(look);
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), made), 0) << pictures.size();
        pictures.push_back(made);
    }
    for (int i = 0; i < 600; ++i) // more than the cache has room for
        [[NSString stringWithFormat:@"%d", i] sizeWithAttributes:nil];
    for (std::size_t i = 0; i < pictures.size(); ++i) EXPECT_EQ(picture(looks[i]), pictures[i]);
}

TEST_F(TextDrawing, DrawsNothingWithoutAContextOrText) {
    [@"nowhere" drawAtPoint:NSMakePoint(0, 0) withAttributes:nil];
    Canvas canvas(20, 20);
    draw(canvas, true, [] {
        [@"" drawInRect:NSMakeRect(0, 0, 20, 20) withAttributes:attributes(10)];
        [@"T" drawInRect:NSMakeRect(0, 0, 0, 20) withAttributes:attributes(10)];
    });
    EXPECT_EQ(ink(canvas).right, -1);
}

} // namespace
