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
    make_view(content, NSMakeRect(0, 0, 10, 10));
    NSView* other = make_view(content, NSMakeRect(0, 0, 50, 50));
    [content addSubview:one];
    EXPECT_EQ([[content subviews] lastObject], one);
    EXPECT_EQ([[content subviews] count], 3u);
    [other addSubview:one];
    EXPECT_EQ([one superview], other);
    EXPECT_EQ([[content subviews] count], 2u);
    EXPECT_EQ([one window], window);
    [other removeFromSuperview];
    EXPECT_EQ([one window], nil);
    EXPECT_TRUE([one isDescendantOf:other]);
    EXPECT_FALSE([one isDescendantOf:content]);
}

TEST_F(ViewTest, AViewCannotBeAddedBelowItself) {
    NSView* outer = make_view(content, NSMakeRect(0, 0, 50, 50));
    NSView* inner = make_view(outer, NSMakeRect(0, 0, 10, 10));
    EXPECT_EQ(raised([&] { [inner addSubview:outer]; }), "NSInvalidArgumentException");
    EXPECT_EQ([outer superview], content);
}

TEST_F(ViewTest, PointsConvertThroughFlippedViews) {
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
    EXPECT_TRUE(equal([flipped convertRect:NSMakeRect(0, 0, 10, 4) toView:plain],
                      NSMakeRect(10, 31, 10, 4)));
}

TEST_F(ViewTest, SubviewsGrowAndShrinkByTheirMasks) {
    NSView* outer = make_view(content, NSMakeRect(0, 0, 100, 100));
    NSView* fixed = make_view(outer, NSMakeRect(10, 20, 30, 40));
    NSView* wide = make_view(outer, NSMakeRect(10, 20, 30, 40));
    NSView* both = make_view(outer, NSMakeRect(10, 20, 30, 40));
    [wide setAutoresizingMask:NSViewWidthSizable];
    [both setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [outer setFrameSize:NSMakeSize(200, 150)];
    EXPECT_TRUE(equal([fixed frame], NSMakeRect(10, 20, 30, 40)));
    EXPECT_TRUE(equal([wide frame], NSMakeRect(10, 20, 130, 40)));
    EXPECT_TRUE(equal([both frame], NSMakeRect(10, 20, 130, 90)));
    [outer setFrameSize:NSMakeSize(10, 10)];
    EXPECT_TRUE(equal([both frame], NSMakeRect(10, 20, 0, 0)));
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
    EXPECT_TRUE(equal([sticks_out visibleRect], NSMakeRect(0, 0, 20, 20)));
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

TEST_F(ViewTest, TabVisitsViewsAsTheyWereAdded) {
    NSTextField* a = field(NSMakeRect(0, 100, 80, 20), @"a", 1);
    field(NSMakeRect(0, 50, 80, 20), @"no", 2);
    [[content viewWithTag:2] setEnabled:NO];
    NSButton* b = button(NSMakeRect(0, 0, 80, 20), NSSwitchButton, 3);
    NSTextField* c = field(NSMakeRect(0, 150, 80, 20), @"c", 4);
    [window makeFirstResponder:a];
    key('\t');
    EXPECT_EQ([window firstResponder], b);
    key('\t');
    EXPECT_NE([c currentEditor], nil);
    key('\t');
    EXPECT_NE([a currentEditor], nil);
    key(NSBackTabCharacter);
    EXPECT_NE([c currentEditor], nil);
    [b setHidden:YES];
    [a removeFromSuperview];
    key('\t');
    EXPECT_NE([c currentEditor], nil) << "the only one left";
}

TEST_F(ViewTest, AViewGetsMouseAndWheelOverItAndKeysOnceClicked) {
    TestEventView* view =
        [[[TestEventView alloc] initWithFrame:NSMakeRect(10, 10, 50, 50)] autorelease];
    view->log = target->log;
    [content addSubview:view];
    NSView* child = make_view(view, NSMakeRect(0, 0, 20, 20));
    NSPostClick(view, NSMakePoint(30, 6));
    NSPostText(@"k");
    NSPostScroll(child, NSMakePoint(1, 1), 0, 2);
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("down 30 6", "key k", "wheel 2.000000"));
}
