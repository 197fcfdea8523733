#include "AppKitTest.h"

#include <cmath>

using appkit_test::AppKitTest;
using testing::ElementsAre;
using testing::IsEmpty;

// A cell that logs its highlighting, and draws nothing.
@interface TestButtonCell : NSButtonCell {
  @public
    std::vector<std::string>* log;
}
@end
@implementation TestButtonCell
- (void)drawWithFrame:(NSRect)__attribute__((unused))frame
               inView:(NSView*)__attribute__((unused))view {
}
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)__attribute__((unused))view {
    const bool focus = [NSGraphicsContext currentContext] != nil;
    if (log)
        log->push_back(std::string(flag ? "lit " : "dark ") +
                       std::to_string(int(frame.size.width)) + (focus ? "" : " without focus"));
}
@end

class ControlTest : public AppKitTest {};

TEST_F(ControlTest, AClickChangesTheStateByTheTypeOfTheButton) {
    struct Case {
        NSButtonType type;
        NSInteger once, twice;
    } cases[] = {{NSSwitchButton, 1, 0}, {NSRadioButton, 1, 1}, {NSMomentaryPushInButton, 0, 0}};
    for (const Case& c : cases) {
        NSButton* b = button(NSMakeRect(10, 10, 60, 20), c.type, int(c.type) + 10);
        EXPECT_EQ(NSTypeOfButton(b), c.type);
        click(b);
        EXPECT_EQ([b state], c.once) << c.type;
        click(b);
        EXPECT_EQ([b state], c.twice) << c.type;
        EXPECT_EQ(take_log().size(), 2u) << c.type;
        [b removeFromSuperview];
    }
}

TEST_F(ControlTest, TypeStateAndActionBelongToTheCell) {
    NSButton* b = button(NSMakeRect(10, 10, 60, 20), NSSwitchButton, 5);
    [b setState:NSOnState];
    [b setCell:[[[NSButtonCell alloc] init] autorelease]];
    EXPECT_EQ(NSTypeOfButton(b), static_cast<NSButtonType>(NSMomentaryPushInButton));
    EXPECT_EQ([b state], NSOffState);
    EXPECT_EQ([b target], nil);
    EXPECT_EQ([b tag], 5);
}

TEST_F(ControlTest, TrackingHighlightsInsideAndActsBeforeItEnds) {
    NSButton* b = button(NSMakeRect(10, 10, 60, 20), NSMomentaryPushInButton, 1);
    TestButtonCell* cell = [[[TestButtonCell alloc] init] autorelease];
    [b setCell:cell];
    [b setTarget:target];
    [b setAction:@selector(act:)];
    cell->log = target->log;
    click(b);
    EXPECT_THAT(take_log(), ElementsAre("lit 60", "1", "dark 60"));
    [window displayIfNeeded];
    // Out, in again, and up inside.
    auto post = [&](NSEventType type, double x) {
        NSPostMouse(window, type, [b convertPoint:NSMakePoint(x, 10) toView:nil], 1, 0);
    };
    post(NSLeftMouseDown, 5);
    post(NSLeftMouseDragged, 100);
    post(NSLeftMouseDragged, 120);
    post(NSLeftMouseDragged, 20);
    post(NSLeftMouseUp, 20);
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("lit 60", "dark 60", "lit 60", "1", "dark 60"));
    post(NSLeftMouseDown, 5);
    post(NSLeftMouseUp, 100);
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("lit 60", "dark 60"));
    // It is never released.
    post(NSLeftMouseDown, 5);
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("lit 60", "dark 60"));
    [b setEnabled:NO];
    click(b);
    [b performClick:nil];
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(ControlTest, AnActionMayRemoveItsControl) {
    NSButton* b = button(NSMakeRect(10, 10, 60, 20), NSSwitchButton, 1);
    hook = [](id sender) {
        [sender setCell:[[[NSButtonCell alloc] init] autorelease]];
        [sender removeFromSuperview];
    };
    click(b);
    EXPECT_THAT(take_log(), ElementsAre("1"));
    EXPECT_EQ([[content subviews] count], 0u);
}

// A slider's value.
static double value(NSSlider* slider) {
    return [[slider stringValue] doubleValue];
}

TEST_F(ControlTest, TheKeyboardReachesEveryControl) {
    button(NSMakeRect(0, 0, 60, 20), NSSwitchButton, 1);
    button(NSMakeRect(0, 20, 60, 20), NSMomentaryPushInButton, 2);
    pop_up(NSMakeRect(0, 40, 60, 20), {@"one", @"two"}, 3);
    NSSlider* slider = add([[NSSlider alloc] initWithFrame:NSMakeRect(0, 60, 100, 20)], 4);
    NSButton* standard = button(NSMakeRect(0, 90, 60, 20), NSMomentaryPushInButton, 5);
    [standard setKeyEquivalent:@"\r"];
    key('\t');
    EXPECT_EQ([window firstResponder], [content viewWithTag:1]);
    key(' ');
    EXPECT_EQ([(NSButton*)[content viewWithTag:1] state], 1);
    key('\t');
    key(' ');
    key('\t');
    NSPostKey(' ');
    NSPostKey(NSDownArrowFunctionKey);
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_EQ([(NSPopUpButton*)[content viewWithTag:3] indexOfSelectedItem], 1);
    key('\t');
    key(NSRightArrowFunctionKey);
    key(NSUpArrowFunctionKey);
    EXPECT_NEAR(value(slider), 0.1, 1e-12);
    key(NSHomeFunctionKey);
    key(NSHomeFunctionKey); // no change, no action
    key('\r');
    EXPECT_THAT(take_log(), ElementsAre("1", "2", "3", "4", "4", "4", "5"));
    key(NSBackTabCharacter);
    EXPECT_EQ([window firstResponder], [content viewWithTag:3]);
    key('\t', NSShiftKeyMask);
    EXPECT_EQ([window firstResponder], [content viewWithTag:2]);
}

TEST_F(ControlTest, ArrowsChooseWithinAGroupAndReturnPressesTheButtonWithTheFocus) {
    for (int tag = 1; tag <= 4; ++tag)
        button(NSMakeRect(0, tag * 20, 60, 20), tag == 2 ? NSSwitchButton : NSRadioButton, tag);
    [(NSButton*)[content viewWithTag:3] setEnabled:NO];
    button(NSMakeRect(0, 100, 60, 20), NSRadioButton, 5);
    [(NSButton*)[content viewWithTag:5] setTarget:nil]; // of no group
    button(NSMakeRect(0, 120, 60, 20), NSMomentaryPushInButton, 6);
    [window makeFirstResponder:[content viewWithTag:1]];
    for (unichar arrow : {NSDownArrowFunctionKey, NSRightArrowFunctionKey, NSUpArrowFunctionKey}) {
        key(arrow);
        EXPECT_EQ([(NSButton*)[window firstResponder] state], NSOnState);
    }
    EXPECT_THAT(take_log(), ElementsAre("4", "1", "4")) << "round, over what is disabled";
    [window makeFirstResponder:[content viewWithTag:6]];
    key('\r');
    EXPECT_THAT(take_log(), ElementsAre("6"));
    [window makeFirstResponder:[content viewWithTag:2]];
    key('\r');
    key(NSDownArrowFunctionKey);
    EXPECT_THAT(take_log(), testing::IsEmpty());
}

TEST_F(ControlTest, NumbersShowTheirShortestDigits) {
    NSTextField* f = field(NSMakeRect(0, 0, 80, 20), @"", 0);
    struct Case {
        float value;
        const char* shown;
    } cases[] = {{1000, "1000"},         {0.1f, "0.1"},      {10000000, "10000000"},
                 {-0.5f, "-0.5"},        {0, "0"},           {1.0f / 3, "0.33333334"},
                 {360, "360"},           {1e-5f, "0.00001"}, {1e20f, "1e+20"},
                 {16777216, "16777216"}, {1e-7f, "1e-07"},   {-2.5e7f, "-25000000"}};
    for (const Case& c : cases) {
        [f setFloatValue:c.value];
        EXPECT_EQ(text([f stringValue]), c.shown);
    }
}

TEST_F(ControlTest, AButtonsNumberIsItsState) {
    NSButton* b = button(NSMakeRect(10, 10, 60, 20), NSSwitchButton, 5);
    [b setTitle:@"7"];
    [b setFloatValue:0.5f];
    EXPECT_EQ([b state], NSOnState);
    [b setFloatValue:0];
    EXPECT_EQ([b state], NSOffState);
    EXPECT_EQ(text([b title]), "7");
}

TEST_F(ControlTest, ASliderFollowsTheMouseAndStaysInItsBounds) {
    NSSlider* slider = add([[NSSlider alloc] initWithFrame:NSMakeRect(10, 10, 112, 20)], 1);
    [slider setFloatValue:1000];
    EXPECT_EQ(value(slider), 1);
    [slider setFloatValue:NAN];
    EXPECT_EQ(value(slider), 0);
    // The knob is 12 wide: its middle travels from 6 to 106.
    NSPostClick(slider, NSMakePoint(56, 10));
    NSDispatchEvents();
    EXPECT_NEAR(value(slider), 0.5, 1e-9);
    take_log();
    // Taken 4 beside its middle it keeps that distance.
    NSPostDrag(slider, NSMakePoint(60, 10), NSMakePoint(90, 10));
    NSDispatchEvents();
    EXPECT_NEAR(value(slider), 0.8, 1e-9);
    EXPECT_EQ(take_log().size(), 4u); // three moves and the end
    NSPostDrag(slider, NSMakePoint(86, 10), NSMakePoint(900, 500));
    NSDispatchEvents();
    EXPECT_NEAR(value(slider), 1, 1e-9);
    NSSlider* tall = add([[NSSlider alloc] initWithFrame:NSMakeRect(10, 50, 20, 112)], 2);
    NSPostClick(tall, NSMakePoint(10, 31)); // flipped: a quarter from the top
    NSDispatchEvents();
    EXPECT_NEAR(value(tall), 0.75, 1e-9);
}
