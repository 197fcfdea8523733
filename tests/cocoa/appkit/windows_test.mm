#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;

class WindowTest : public AppKitTest {
  protected:
    static NSWindow* make(NSUInteger mask, NSRect rect = NSMakeRect(0, 0, 200, 100)) {
        NSWindow* result = [[NSWindow alloc] initWithContentRect:rect
                                                       styleMask:mask
                                                         backing:NSBackingStoreBuffered
                                                           defer:YES];
        [result setReleasedWhenClosed:NO];
        return [result autorelease];
    }
};

TEST_F(WindowTest, FramesAreHigherThanTheContentByTheTitleBar) {
    EXPECT_TRUE(equal([make(NSTitledWindowMask) frame], NSMakeRect(0, 0, 200, 122)));
    EXPECT_TRUE(equal([make(NSBorderlessWindowMask) frame], NSMakeRect(0, 0, 200, 100)));
    NSWindow* titled = make(NSTitledWindowMask | NSResizableWindowMask);
    [titled setFrame:NSMakeRect(5, 6, 300, 222) display:YES];
    EXPECT_TRUE(equal([[titled contentView] frame], NSMakeRect(0, 0, 300, 200)));
    [titled setContentSize:NSMakeSize(100, 50)];
    EXPECT_TRUE(equal([titled frame], NSMakeRect(5, 156, 100, 72)));
}

TEST_F(WindowTest, AWindowIsHiddenUntilOrderedAndOrderBackShowsIt) {
    NSWindow* other = make(NSTitledWindowMask);
    EXPECT_FALSE([other isVisible]);
    [other orderBack:nil];
    EXPECT_TRUE([other isVisible]);
    EXPECT_TRUE([window isKeyWindow]);
    [other makeKeyAndOrderFront:nil];
    EXPECT_EQ([NSApp keyWindow], other);
    [other orderBack:nil];
    EXPECT_TRUE([other isVisible]);
    EXPECT_TRUE([other isKeyWindow]);
    [other orderOut:nil];
    EXPECT_FALSE([other isVisible]);
    EXPECT_TRUE([window isKeyWindow]); // the next that can be it
    NSWindow* borderless = make(NSBorderlessWindowMask);
    [borderless makeKeyAndOrderFront:nil];
    EXPECT_TRUE([borderless isVisible]);
    EXPECT_FALSE([borderless isKeyWindow]);
}

TEST_F(WindowTest, ClosingReleasesOnceOrNot) {
    const auto before = live_objects();
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSWindow* other = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 50, 50)
                                                  styleMask:NSTitledWindowMask
                                                    backing:NSBackingStoreBuffered
                                                      defer:YES];
    [other close];
    [pool drain];
    EXPECT_EQ(live_objects(), before);
    NSWindow* kept = make(NSTitledWindowMask);
    [kept orderFront:nil];
    [kept close];
    EXPECT_FALSE([kept isVisible]);
    [kept orderFront:nil];
    EXPECT_TRUE([kept isVisible]);
}

TEST_F(WindowTest, TheTitleBarMovesAndTheGripResizes) {
    NSWindow* other =
        make(NSTitledWindowMask | NSResizableWindowMask, NSMakeRect(300, 300, 200, 100));
    [other orderFront:nil];
    // Each location is where the pointer is in the moved window.
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(100, 112), 1, 0);
    NSPostMouse(other, NSLeftMouseDragged, NSMakePoint(130, 102), 1, 0);
    NSPostMouse(other, NSLeftMouseUp, NSMakePoint(100, 112), 1, 0);
    NSDispatchEvents();
    EXPECT_TRUE(equal([other frame], NSMakeRect(330, 290, 200, 122)));
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(195, 5), 1, 0);
    NSPostMouse(other, NSLeftMouseDragged, NSMakePoint(235, -15), 1, 0);
    NSPostMouse(other, NSLeftMouseUp, NSMakePoint(235, 5), 1, 0);
    NSDispatchEvents();
    EXPECT_TRUE(equal([other frame], NSMakeRect(330, 270, 240, 142)));
    [other zoom:nil];
    EXPECT_TRUE(equal([other frame], [[NSScreen mainScreen] visibleFrame]));
    NSUseHeadlessDisplay(NSMakeSize(800, 600), 2);
    EXPECT_EQ([other frame].size.width, 800);
    [other zoom:nil];
    EXPECT_TRUE(equal([other frame], NSMakeRect(330, 270, 240, 142)));
}

TEST_F(WindowTest, TheScreenIsVisibleBelowTheMenuBarWithYUpwards) {
    EXPECT_TRUE(equal([[NSScreen mainScreen] frame], NSMakeRect(0, 0, 1440, 900)));
    EXPECT_TRUE(equal([[NSScreen mainScreen] visibleFrame], NSMakeRect(0, 0, 1440, 876)));
}

TEST_F(WindowTest, AViewThatLeavesLosesTheFocus) {
    NSButton* one = button(NSMakeRect(0, 0, 50, 20), NSSwitchButton, 1);
    EXPECT_TRUE([window makeFirstResponder:one]);
    EXPECT_EQ([window firstResponder], one);
    [one removeFromSuperview];
    EXPECT_EQ([window firstResponder], window);
    EXPECT_FALSE([window makeFirstResponder:one]);
    [window makeFirstResponder:button(NSMakeRect(0, 0, 50, 20), NSSwitchButton, 2)];
    [[content viewWithTag:2] setEnabled:NO];
    EXPECT_EQ([window firstResponder], window);
}

TEST_F(WindowTest, TheMouseReachesTheModalWindowAlone) {
    NSButton* outside = button(NSMakeRect(0, 0, 50, 20), NSMomentaryPushInButton, 1);
    NSWindow* modal = make(NSTitledWindowMask, NSMakeRect(600, 600, 100, 60));
    NSButton* inside = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 50, 20)] autorelease];
    [inside setTag:2];
    [inside setTarget:target];
    [inside setAction:@selector(act:)];
    [[modal contentView] addSubview:inside];
    hook = [](id) { [NSApp stopModalWithCode:42]; };
    NSPostClick(outside, middle(outside));
    [modal orderFront:nil];
    NSPostClick(inside, middle(inside));
    EXPECT_EQ([NSApp runModalForWindow:modal], 42);
    EXPECT_THAT(take_log(), ElementsAre("2"));
    EXPECT_EQ([NSApp modalWindow], nil);
    // Without a user and without events nothing can end it.
    EXPECT_EQ([NSApp runModalForWindow:modal], NSRunAbortedResponse);
}
