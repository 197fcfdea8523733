#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::Each;
using testing::ElementsAre;

namespace {

using Pixel = std::vector<int>;

// The pixel that holds a point, y from the top.
Pixel at(const NSPicture& picture, double scale, double x, double y) {
    const auto offset =
        (static_cast<size_t>(y * scale) * picture.width + static_cast<size_t>(x * scale)) * 4;
    return {picture.rgba.at(offset), picture.rgba.at(offset + 1), picture.rgba.at(offset + 2),
            picture.rgba.at(offset + 3)};
}

// The darkest red in a rectangle of points.
int darkest(const NSPicture& picture, double scale, NSRect rect) {
    int result = 255;
    for (double y = NSMinY(rect); y < NSMaxY(rect); y += 0.5 / scale)
        for (double x = NSMinX(rect); x < NSMaxX(rect); x += 0.5 / scale)
            result = std::min(result, at(picture, scale, x, y)[0]);
    return result;
}

int different_pixels(const NSPicture& a, const NSPicture& b) {
    int count = 0;
    for (size_t i = 0; i < a.rgba.size() && i < b.rgba.size(); i += 4)
        count += !std::equal(&a.rgba[i], &a.rgba[i] + 4, &b.rgba[i]);
    return count;
}

const Pixel red = {255, 0, 0, 255}, blue = {0, 0, 255, 255}, nothing = {0, 0, 0, 0};

} // namespace

// Fills a rectangle in its own coordinates, which may reach beyond its bounds.
@interface TestPainter : NSView {
  @public
    NSRect rect;
    BOOL flipped;
    BOOL isBlue;
    int draws;
}
@end
@implementation TestPainter
- (BOOL)isFlipped {
    return flipped;
}
- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    ++draws;
    [[NSColor colorWithDeviceRed:!isBlue green:0 blue:isBlue alpha:1] setFill];
    NSRectFill(rect);
}
@end

class DrawingTest : public AppKitTest {
  protected:
    // The pixel of the content on the screen, y from its top. The window's upper left corner is at
    // (100, 378), its title bar 22 high.
    static Pixel on_screen(double x, double y) { return at(NSRenderScreen(), 1, 100 + x, 400 + y); }
    static TestPainter* painter(NSRect frame, NSRect rect, BOOL flipped, NSView* superview = nil) {
        TestPainter* result = [[[TestPainter alloc] initWithFrame:frame] autorelease];
        result->rect = rect;
        result->flipped = flipped;
        [superview addSubview:result];
        return result;
    }
};

TEST_F(DrawingTest, ViewsDrawInTheirOwnCoordinatesClippedToTheirBoundsAtAnyScale) {
    for (const double scale : {1.0, 1.5, 2.0})
        for (const BOOL flipped : {NO, YES}) {
            // 40 x 20, red in the corner at its origin; in it a blue one that wants much more room.
            TestPainter* outer =
                painter(NSMakeRect(300, 70, 40, 20), NSMakeRect(0, 0, 10, 4), flipped);
            TestPainter* inner =
                painter(NSMakeRect(20, 8, 10, 6), NSMakeRect(-50, -50, 200, 200), !flipped, outer);
            inner->isBlue = YES;
            const NSPicture picture = NSRenderView(outer, scale);
            ASSERT_EQ(picture.width, 40 * scale);
            ASSERT_EQ(picture.height, 20 * scale);
            const double corner = flipped ? 1 : 18.9, opposite = flipped ? 18.9 : 1;
            EXPECT_EQ(at(picture, scale, 1, corner), red) << scale << flipped;
            EXPECT_EQ(at(picture, scale, 1, opposite), nothing) << scale << flipped;
            EXPECT_EQ(at(picture, scale, 11, corner), nothing) << scale << flipped;
            const double top = flipped ? 8 : 20 - 8 - 6;
            EXPECT_EQ(at(picture, scale, 25, top + 3), blue) << scale << flipped;
            EXPECT_EQ(at(picture, scale, 25, top - 1), nothing) << scale << flipped;
            EXPECT_EQ(at(picture, scale, 25, top + 7), nothing) << scale << flipped;
            EXPECT_EQ(at(picture, scale, 31, top + 3), nothing) << scale << flipped;
            [inner setHidden:YES];
            EXPECT_EQ(at(NSRenderView(outer, scale), scale, 25, top + 3), nothing);
        }
}

TEST_F(DrawingTest, OnlyDirtyViewsAreRedrawn) {
    TestPainter* left = painter(NSMakeRect(0, 0, 50, 50), NSMakeRect(0, 0, 50, 50), NO, content);
    TestPainter* right = painter(NSMakeRect(100, 0, 50, 50), NSMakeRect(0, 0, 50, 50), NO, content);
    [window displayIfNeeded];
    left->draws = right->draws = 0;
    [window displayIfNeeded];
    EXPECT_EQ(left->draws, 0);
    [right setNeedsDisplay:YES];
    [window displayIfNeeded];
    EXPECT_EQ(left->draws, 0);
    EXPECT_EQ(right->draws, 1);
    [left display];
    EXPECT_EQ(left->draws, 1);
    EXPECT_EQ(on_screen(120, 10), red);
}

TEST_F(DrawingTest, LockedFocusDrawsInTheViewAndNowhereElse) {
    TestPainter* view = painter(NSMakeRect(30, 40, 20, 10), NSZeroRect, YES, content);
    [window displayIfNeeded];
    [view lockFocus];
    [[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1] setFill];
    NSRectFill(NSMakeRect(0, 0, 5, 100));
    [view unlockFocus];
    EXPECT_EQ(on_screen(32, 41), blue);
    EXPECT_EQ(on_screen(32, 49), blue);
    EXPECT_NE(on_screen(32, 51), blue);
    EXPECT_NE(on_screen(36, 41), blue);
}

TEST_F(DrawingTest, AButtonLooksPressedWhileItsActionRunsAndNormalAfterwards) {
    NSButton* b = button(NSMakeRect(10, 10, 80, 24), NSMomentaryPushInButton, 1);
    const NSPicture normal = NSRenderScreen();
    NSPicture pressed;
    hook = [&](id) { pressed = NSRenderScreen(); };
    click(b);
    EXPECT_GT(different_pixels(normal, pressed), 500);
    EXPECT_EQ(different_pixels(normal, NSRenderScreen()), 0);
}

TEST_F(DrawingTest, AFieldShowsItsColoursAndIsPalerWhenDisabled) {
    NSTextField* f = field(NSMakeRect(0, 0, 75, 15), @"1000", 0);
    [f setFont:[NSFont systemFontOfSize:9]];
    [f setBezeled:NO];
    [f setBordered:YES];
    [f setBackgroundColor:[NSColor colorWithDeviceWhite:0.784 alpha:1]];
    [f setTextColor:[NSColor colorWithDeviceWhite:0 alpha:1]];
    for (const double scale : {1.0, 2.0}) {
        const NSPicture enabled = NSRenderView(f, scale);
        EXPECT_EQ(at(enabled, scale, 60, 7), (Pixel{200, 200, 200, 255}));
        EXPECT_LT(at(enabled, scale, 60, 0.2)[0], 190); // the border
        const NSRect inside = NSMakeRect(2, 2, 40, 11);
        const int ink = darkest(enabled, scale, inside);
        EXPECT_LT(ink, 60);
        EXPECT_GT(darkest(enabled, scale, NSMakeRect(40, 2, 30, 11)), 190);
        [f setEnabled:NO];
        const NSPicture disabled = NSRenderView(f, scale);
        EXPECT_GT(darkest(disabled, scale, inside), ink + 40);
        EXPECT_LT(darkest(disabled, scale, inside), 180);
        [f setEnabled:YES];
    }
}

TEST_F(DrawingTest, FocusRingCaretAndSelectionAreVisible) {
    NSTextField* f = field(NSMakeRect(50, 50, 100, 20), @"", 0);
    auto picture = [&] { return NSRenderView(content, 1); };
    const NSPicture plain = picture();
    [window makeFirstResponder:f];
    const NSPicture focused = picture();
    EXPECT_NE(at(plain, 1, 49, 60), at(focused, 1, 49, 60));
    EXPECT_NE(at(plain, 1, 100, 49), at(focused, 1, 100, 49));
    EXPECT_EQ(at(plain, 1, 46, 60), at(focused, 1, 46, 60));
    EXPECT_NE(at(plain, 1, 54, 60), at(focused, 1, 54, 60)); // the caret
    type(@"iii");
    const NSPicture typed = picture();
    key('a', NSControlKeyMask);
    EXPECT_GT(different_pixels(typed, picture()), 50);
    // A button gets the ring too, and the field loses it.
    NSButton* b = button(NSMakeRect(200, 50, 60, 20), NSMomentaryPushInButton, 0);
    const NSPicture before = picture();
    [window makeFirstResponder:b];
    EXPECT_NE(at(before, 1, 199, 60), at(picture(), 1, 199, 60));
    EXPECT_EQ(at(plain, 1, 49, 60), at(picture(), 1, 49, 60));
}

TEST_F(DrawingTest, LongTextScrollsToTheCaret) {
    NSTextField* f = field(NSMakeRect(50, 50, 60, 20), @"", 0);
    [window makeFirstResponder:f];
    type(@"wwwwwwwwwwwwwwwwwwwwwwww");
    const NSPicture end = NSRenderView(f, 1);
    key(NSHomeFunctionKey);
    const NSPicture start = NSRenderView(f, 1);
    EXPECT_GT(different_pixels(end, start), 10);
    // Nothing is drawn beyond the frame of the field.
    EXPECT_EQ(at(end, 1, 1, 10), at(start, 1, 1, 10));
    key(NSEndFunctionKey);
    EXPECT_EQ(different_pixels(end, NSRenderView(f, 1)), 0);
}

TEST_F(DrawingTest, ABoxWithoutTitleLeavesRoomForIt) {
    NSBox* box = add([[NSBox alloc] initWithFrame:NSMakeRect(10, 10, 100, 60)]);
    EXPECT_EQ(text([box title]), "Title");
    [box setTitle:@""];
    const NSPicture picture = NSRenderView(box, 1);
    int top = 0; // of the line, the first ink
    while (at(picture, 1, 50, top) == nothing) ++top;
    EXPECT_GT(top, 10);
    EXPECT_LT(top, 20);
    EXPECT_GT(at(picture, 1, 50, top)[3], 60);
    EXPECT_LT(at(picture, 1, 50, top)[3], 255);
    EXPECT_EQ(at(picture, 1, 50, top + 20), nothing);
    EXPECT_GT(at(picture, 1, 0, 40)[3], 60);
}

TEST_F(DrawingTest, TheScreenShowsWindowsFrontToBack) {
    [content addSubview:painter(NSMakeRect(0, 0, 400, 300), NSMakeRect(0, 0, 400, 300), NO)];
    NSWindow* front = [[[NSWindow alloc] initWithContentRect:NSMakeRect(150, 250, 100, 100)
                                                   styleMask:NSBorderlessWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES] autorelease];
    [front setReleasedWhenClosed:NO];
    TestPainter* paint = painter(NSZeroRect, NSMakeRect(0, 0, 100, 100), NO);
    paint->isBlue = YES;
    [front setContentView:paint];
    [front orderFront:nil];
    NSPicture screen = NSRenderScreen();
    ASSERT_EQ(screen.width, 1440);
    ASSERT_EQ(screen.height, 900);
    EXPECT_EQ(at(screen, 1, 101, 900 - 201), red);
    EXPECT_EQ(at(screen, 1, 499, 900 - 499), red);
    EXPECT_NE(at(screen, 1, 300, 900 - 510), red); // the title bar
    EXPECT_EQ(at(screen, 1, 151, 900 - 251), blue);
    EXPECT_EQ(at(screen, 1, 249, 900 - 349), blue);
    [front orderBack:nil];
    EXPECT_EQ(at(NSRenderScreen(), 1, 200, 900 - 300), red);
    NSUseHeadlessDisplay(NSMakeSize(720, 600), 1.5);
    screen = NSRenderScreen();
    EXPECT_EQ(screen.width, 1080);
    EXPECT_EQ(at(screen, 1.5, 101, 600 - 201), red);
}
