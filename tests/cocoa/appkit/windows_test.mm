#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;

@interface TestDelegate : NSObject <NSWindowDelegate> {
  @public
    std::vector<std::string>* log;
    BOOL refuses;
}
@end
@implementation TestDelegate
- (BOOL)windowShouldClose:(id)__attribute__((unused))sender {
    log->push_back("should close");
    return !refuses;
}
- (void)windowWillClose:(NSNotification*)__attribute__((unused))notification {
    log->push_back("will close");
}
- (void)windowDidResize:(NSNotification*)notification {
    log->push_back("resized " + std::to_string(int([[notification object] frame].size.width)));
}
@end

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
    EXPECT_TRUE(NSEqualRects([make(NSTitledWindowMask) frame], NSMakeRect(0, 0, 200, 122)));
    EXPECT_TRUE(NSEqualRects([make(NSBorderlessWindowMask) frame], NSMakeRect(0, 0, 200, 100)));
    NSWindow* titled = make(NSTitledWindowMask | NSResizableWindowMask);
    [titled setFrame:NSMakeRect(5, 6, 300, 222) display:YES];
    EXPECT_TRUE(NSEqualRects([[titled contentView] frame], NSMakeRect(0, 0, 300, 200)));
    EXPECT_TRUE(
        NSEqualRects([titled contentRectForFrameRect:[titled frame]], NSMakeRect(5, 6, 300, 200)));
    [titled setContentSize:NSMakeSize(100, 50)];
    EXPECT_TRUE(NSEqualRects([titled frame], NSMakeRect(5, 156, 100, 72)));
}

TEST_F(WindowTest, AWindowIsHiddenUntilOrderedAndOrderBackShowsIt) {
    NSWindow* other = make(NSTitledWindowMask);
    EXPECT_FALSE([other isVisible]);
    [other orderBack:nil];
    EXPECT_TRUE([other isVisible]);
    EXPECT_EQ([[NSApp orderedWindows] lastObject], other);
    EXPECT_TRUE([window isKeyWindow]);
    [other makeKeyAndOrderFront:nil];
    EXPECT_EQ([[NSApp orderedWindows] objectAtIndex:0], other);
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

TEST_F(WindowTest, ClosingReleasesOnceUnlessToldNotTo) {
    const NSUInteger before = NSLiveObjectCount([NSWindow class]);
    NSWindow* other = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 50, 50)
                                                  styleMask:NSTitledWindowMask
                                                    backing:NSBackingStoreBuffered
                                                      defer:YES];
    EXPECT_TRUE([other isReleasedWhenClosed]);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [other close];
    [pool drain];
    EXPECT_EQ(NSLiveObjectCount([NSWindow class]), before);
    NSWindow* kept = make(NSTitledWindowMask);
    [kept orderFront:nil];
    [kept close];
    EXPECT_FALSE([kept isVisible]);
    [kept orderFront:nil];
    EXPECT_TRUE([kept isVisible]);
}

TEST_F(WindowTest, TheCloseButtonAsksTheDelegate) {
    NSWindow* other = make(NSTitledWindowMask | NSClosableWindowMask);
    TestDelegate* delegate = [[[TestDelegate alloc] init] autorelease];
    delegate->log = target->log;
    delegate->refuses = YES;
    [other setDelegate:delegate];
    [other makeKeyAndOrderFront:nil];
    auto press_close = [&] {
        for (NSEventType type : {NSLeftMouseDown, NSLeftMouseUp})
            NSPostMouse(other, type, NSMakePoint(12, 111), 1, 0);
        NSDispatchEvents();
    };
    press_close();
    EXPECT_THAT(take_log(), ElementsAre("should close"));
    EXPECT_TRUE([other isVisible]);
    delegate->refuses = NO;
    press_close();
    EXPECT_THAT(take_log(), ElementsAre("should close", "will close"));
    EXPECT_FALSE([other isVisible]);
    [window setDelegate:delegate];
    [window performClose:nil]; // has no close button
    EXPECT_TRUE([window isVisible]);
    [window setFrame:NSMakeRect(0, 0, 333, 300) display:YES];
    EXPECT_THAT(take_log(), ElementsAre("resized 333"));
    [window setDelegate:nil];
}

TEST_F(WindowTest, TheTitleBarMovesAndTheGripResizes) {
    NSWindow* other =
        make(NSTitledWindowMask | NSResizableWindowMask, NSMakeRect(300, 300, 200, 100));
    [other orderFront:nil];
    // Each event names the place where the pointer then is in the moved window.
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(100, 112), 1, 0);
    NSPostMouse(other, NSLeftMouseDragged, NSMakePoint(130, 102), 1, 0);
    NSPostMouse(other, NSLeftMouseUp, NSMakePoint(100, 112), 1, 0);
    NSDispatchEvents();
    EXPECT_TRUE(NSEqualRects([other frame], NSMakeRect(330, 290, 200, 122)));
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(195, 5), 1, 0);
    NSPostMouse(other, NSLeftMouseDragged, NSMakePoint(235, -15), 1, 0);
    NSPostMouse(other, NSLeftMouseUp, NSMakePoint(235, 5), 1, 0);
    NSDispatchEvents();
    EXPECT_TRUE(NSEqualRects([other frame], NSMakeRect(330, 270, 240, 142)));
    [other zoom:nil];
    EXPECT_TRUE(NSEqualRects([other frame], [[NSScreen mainScreen] visibleFrame]));
    NSUseHeadlessDisplay(NSMakeSize(800, 600), 2);
    EXPECT_EQ([other frame].size.width, 800);
    [other zoom:nil];
    EXPECT_TRUE(NSEqualRects([other frame], NSMakeRect(330, 270, 240, 142)));
}

TEST_F(WindowTest, TheScreenIsVisibleBelowTheMenuBarWithYUpwards) {
    EXPECT_TRUE(NSEqualRects([[NSScreen mainScreen] frame], NSMakeRect(0, 0, 1440, 900)));
    EXPECT_TRUE(NSEqualRects([[NSScreen mainScreen] visibleFrame], NSMakeRect(0, 0, 1440, 876)));
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

TEST_F(WindowTest, AModalWindowHasTheMouseForItself) {
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

@interface TestTicker : NSObject {
  @public
    int ticks;
}
@end
@implementation TestTicker
- (void)tick:(NSTimer*)timer {
    if (++ticks == 3) [timer invalidate];
    if (ticks == 3) [NSApp stop:nil];
}
@end

TEST_F(WindowTest, TheApplicationRunsTimersUntilStopped) {
    TestTicker* ticker = [[[TestTicker alloc] init] autorelease];
    NSTimer* timer = [NSTimer scheduledTimerWithTimeInterval:0.001
                                                      target:ticker
                                                    selector:@selector(tick:)
                                                    userInfo:nil
                                                     repeats:YES];
    [NSApp run];
    EXPECT_EQ(ticker->ticks, 3);
    EXPECT_FALSE([timer isValid]);
    EXPECT_FALSE([NSApp isRunning]);
    [[NSRunLoop currentRunLoop] limitDateForMode:NSDefaultRunLoopMode];
}
