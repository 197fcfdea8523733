#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;

static NSView* make_view(NSView* superview, NSRect frame, bool flipped = false) {
    NSView* view = flipped ? [[TestFlippedView alloc] initWithFrame:frame]
                           : [[NSView alloc] initWithFrame:frame];
    [superview addSubview:view];
    return [view autorelease];
}

class ViewTest : public AppKitTest {};

TEST_F(ViewTest, AddingMovesAViewToTheTopOfItsNewSuperviewWhichRetainsIt) {
    NSView* one = make_view(content, NSMakeRect(0, 0, 10, 10));
    NSView* two = make_view(content, NSMakeRect(0, 0, 10, 10));
    NSView* other = make_view(content, NSMakeRect(0, 0, 50, 50));
    [content addSubview:one];
    EXPECT_EQ([[content subviews] lastObject], one);
    EXPECT_EQ([[content subviews] count], 3u);
    [other addSubview:one];
    EXPECT_EQ([one superview], other);
    EXPECT_EQ([[content subviews] count], 2u);
    [content addSubview:other positioned:NSWindowBelow relativeTo:two];
    EXPECT_EQ([[content subviews] objectAtIndex:0], other);
    [content addSubview:other positioned:NSWindowAbove relativeTo:nil];
    EXPECT_EQ([[content subviews] lastObject], other);
    EXPECT_EQ([one window], window);
    [other removeFromSuperview];
    EXPECT_EQ([one window], nil);
    EXPECT_TRUE([one isDescendantOf:other]);
    EXPECT_FALSE([one isDescendantOf:content]);
}

TEST_F(ViewTest, AViewCannotBeAddedBelowItself) {
    NSView* outer = make_view(content, NSMakeRect(0, 0, 50, 50));
    NSView* inner = make_view(outer, NSMakeRect(0, 0, 10, 10));
    EXPECT_THROW([inner addSubview:outer], NSRaisedException);
    EXPECT_EQ([outer superview], content);
}

TEST_F(ViewTest, PointsConvertThroughFlippedAndScrolledViews) {
    // The window's base has its origin below; the content is flipped and 300 high.
    NSView* plain = make_view(content, NSMakeRect(50, 20, 100, 80));
    NSView* flipped = make_view(plain, NSMakeRect(10, 5, 40, 30), true);
    struct Case {
        NSView* view;
        NSPoint point;
        NSPoint base;
    } cases[] = {
        {content, NSMakePoint(0, 0), NSMakePoint(0, 300)},
        {content, NSMakePoint(7, 299), NSMakePoint(7, 1)},
        // Its lower edge is at y 100 of the content, so at 200 of the base.
        {plain, NSMakePoint(0, 0), NSMakePoint(50, 200)},
        {plain, NSMakePoint(3, 80), NSMakePoint(53, 280)},
        // Its upper edge is 45 below the upper edge of `plain`: 200 + 5 + 30 in the base.
        {flipped, NSMakePoint(0, 0), NSMakePoint(60, 235)},
        {flipped, NSMakePoint(1, 30), NSMakePoint(61, 205)},
    };
    for (const Case& c : cases) {
        const NSPoint base = [c.view convertPoint:c.point toView:nil];
        EXPECT_EQ(base.x, c.base.x);
        EXPECT_EQ(base.y, c.base.y);
        EXPECT_TRUE(NSEqualPoints([c.view convertPoint:base fromView:nil], c.point));
    }
    [flipped setBoundsOrigin:NSMakePoint(100, 1000)];
    EXPECT_TRUE(NSEqualPoints([flipped convertPoint:NSMakePoint(100, 1000) toView:nil],
                              NSMakePoint(60, 235)));
    EXPECT_TRUE(NSEqualRects([flipped convertRect:NSMakeRect(100, 1000, 10, 4) toView:plain],
                             NSMakeRect(10, 31, 10, 4)));
}

TEST_F(ViewTest, SubviewsFollowByTheirMasks) {
    struct Case {
        NSUInteger mask;
        NSRect after;
    } cases[] = {
        {NSViewNotSizable, NSMakeRect(10, 20, 30, 40)},
        {NSViewWidthSizable | NSViewHeightSizable, NSMakeRect(10, 20, 130, 90)},
        {NSViewMinXMargin, NSMakeRect(110, 20, 30, 40)},
        {NSViewMaxXMargin | NSViewMaxYMargin, NSMakeRect(10, 20, 30, 40)},
        // The margins are 10 and 60: of 100 more, they get 1/7 and 6/7.
        {NSViewMinXMargin | NSViewMaxXMargin, NSMakeRect(10 + 100.0 / 7, 20, 30, 40)},
        // Of 50 more in height, the length's share is 40 of 80 (the rest is the upper margin's).
        {NSViewHeightSizable | NSViewMaxYMargin, NSMakeRect(10, 20, 30, 65)},
    };
    for (const Case& c : cases) {
        NSView* outer = make_view(content, NSMakeRect(0, 0, 100, 100));
        NSView* inner = make_view(outer, NSMakeRect(10, 20, 30, 40));
        [inner setAutoresizingMask:c.mask];
        [outer setFrameSize:NSMakeSize(200, 150)];
        EXPECT_NEAR([inner frame].origin.x, c.after.origin.x, 1e-9) << c.mask;
        EXPECT_NEAR([inner frame].origin.y, c.after.origin.y, 1e-9) << c.mask;
        EXPECT_NEAR([inner frame].size.width, c.after.size.width, 1e-9) << c.mask;
        EXPECT_NEAR([inner frame].size.height, c.after.size.height, 1e-9) << c.mask;
    }
    NSView* outer = make_view(content, NSZeroRect);
    NSView* inner = make_view(outer, NSZeroRect);
    [inner setAutoresizingMask:18];
    [outer setFrameSize:NSMakeSize(600, 400)];
    EXPECT_EQ([inner frame].size.width, 600);
    EXPECT_EQ([inner frame].size.height, 400);
    [outer setAutoresizesSubviews:NO];
    [outer setFrameSize:NSMakeSize(10, 10)];
    EXPECT_EQ([inner frame].size.width, 600);
}

TEST_F(ViewTest, HitsFindTheTopmostVisibleViewInsideAllItsSuperviews) {
    NSView* low = make_view(content, NSMakeRect(0, 0, 100, 100));
    NSView* high = make_view(content, NSMakeRect(50, 50, 100, 100));
    NSView* sticks_out = make_view(high, NSMakeRect(80, 0, 100, 20));
    // In base coordinates: the content's y is turned.
    auto hit = [&](double x, double y) { return [content hitTest:NSMakePoint(x, 300 - y)]; };
    EXPECT_EQ(hit(20, 20), low);
    EXPECT_EQ(hit(75, 75), high);
    EXPECT_EQ(hit(140, 140), sticks_out);
    EXPECT_EQ(hit(160, 140), content); // beyond its superview
    EXPECT_EQ(hit(500, 140), nil);
    [high setHidden:YES];
    EXPECT_EQ(hit(75, 75), low);
    EXPECT_TRUE([sticks_out isHiddenOrHasHiddenAncestor]);
    [high setHidden:NO];
    EXPECT_TRUE(NSEqualRects([sticks_out visibleRect], NSMakeRect(0, 0, 20, 20)));
}

TEST_F(ViewTest, TagsAreFoundDepthFirst) {
    NSView* box = make_view(content, NSMakeRect(0, 0, 100, 100));
    NSButton* inner = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
    [inner setTag:7];
    [box addSubview:inner];
    NSButton* outer = button(NSMakeRect(0, 0, 10, 10), NSSwitchButton, 7);
    EXPECT_EQ([content viewWithTag:7], inner);
    [inner setTag:8];
    EXPECT_EQ([content viewWithTag:7], outer);
    EXPECT_EQ([content viewWithTag:9], nil);
}

TEST_F(ViewTest, TabVisitsViewsAsTheyWereAddedUnlessToldOtherwise) {
    NSTextField* a = field(NSMakeRect(0, 100, 80, 20), @"a", 1);
    field(NSMakeRect(0, 50, 80, 20), @"no", 2);
    [[content viewWithTag:2] setEnabled:NO];
    NSButton* c = button(NSMakeRect(0, 0, 80, 20), NSSwitchButton, 3);
    NSTextField* d = field(NSMakeRect(0, 150, 80, 20), @"d", 4);
    EXPECT_EQ([a nextValidKeyView], c);
    EXPECT_EQ([d nextValidKeyView], a);
    EXPECT_EQ([a previousValidKeyView], d);
    [a setNextKeyView:d];
    EXPECT_EQ([a nextValidKeyView], d);
    EXPECT_EQ([d previousKeyView], a);
    [d removeFromSuperview];
    [a setNextKeyView:nil];
    [c setHidden:YES];
    EXPECT_EQ([a nextValidKeyView], nil);
}

TEST_F(ViewTest, AViewKeepsTheMouseFromDownToUpAndGetsKeysOnceClicked) {
    TestEventView* view =
        [[[TestEventView alloc] initWithFrame:NSMakeRect(10, 10, 50, 50)] autorelease];
    view->log = target->log;
    [content addSubview:view];
    NSView* child = make_view(view, NSMakeRect(0, 0, 20, 20));
    NSPostDrag(view, NSMakePoint(30, 6), NSMakePoint(300, 300));
    NSPostText(@"k");
    NSPostScroll(child, NSMakePoint(1, 1), 0, 2);
    NSDispatchEvents();
    EXPECT_THAT(take_log(),
                ElementsAre("down 30 6", "drag", "drag", "drag", "up", "key k", "wheel 2.000000"));
}
