#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;
using testing::IsEmpty;

@interface TestHelper : NSObject <NSApplicationDelegate> {
  @public
    std::vector<std::string>* log;
}
@end
@implementation TestHelper
- (void)helperAction:(id)__attribute__((unused))sender {
    log->push_back("helper");
}
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)__attribute__((unused))
                                                          sender {
    log->push_back("should terminate");
    return NSTerminateCancel;
}
- (void)tick:(NSTimer*)__attribute__((unused))timer {
    log->push_back("tick");
}
@end

@interface TestActionView : TestEventView
@end
@implementation TestActionView
- (void)helperAction:(id)__attribute__((unused))sender {
    log->push_back("view");
}
@end

class EventTest : public AppKitTest {
  protected:
    TestHelper* helper() {
        TestHelper* result = [[[TestHelper alloc] init] autorelease];
        result->log = target->log;
        return result;
    }
    TestEventView* event_view(NSView* superview, NSRect frame) {
        TestEventView* view = [[[TestEventView alloc] initWithFrame:frame] autorelease];
        view->log = target->log;
        [superview addSubview:view];
        return view;
    }
};

TEST_F(EventTest, TheQueueReturnsWhatTheMaskMatchesAndKeepsTheRest) {
    NSPostKey('a');
    NSPostMouse(window, NSLeftMouseUp, NSZeroPoint, 1, 0);
    auto next = [](NSUInteger mask, BOOL dequeue) {
        return [NSApp nextEventMatchingMask:mask
                                  untilDate:[NSDate distantFuture]
                                     inMode:NSEventTrackingRunLoopMode
                                    dequeue:dequeue];
    };
    EXPECT_EQ([next(NSLeftMouseUpMask, NO) type], (NSEventType)NSLeftMouseUp);
    EXPECT_EQ([next(NSLeftMouseUpMask, YES) type], (NSEventType)NSLeftMouseUp);
    EXPECT_EQ([[NSApp currentEvent] type], (NSEventType)NSLeftMouseUp);
    EXPECT_EQ(next(NSLeftMouseUpMask | NSLeftMouseDraggedMask, YES), nil); // at once
    EXPECT_EQ(text([next(NSAnyEventMask, YES) characters]), "a");
    NSPostKey('b');
    [NSApp postEvent:[NSApp currentEvent] atStart:YES];
    EXPECT_EQ(text([next(NSKeyDownMask, YES) characters]), "a");
    EXPECT_EQ(NSDispatchEvents(), 3u); // the ups of both and the down of b
}

TEST_F(EventTest, AnActionWithoutTargetGoesAlongTheChain) {
    TestHelper* delegate = helper();
    TestActionView* view =
        [[[TestActionView alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)] autorelease];
    view->log = target->log;
    [content addSubview:view];
    TestEventView* inner = event_view(view, NSMakeRect(0, 0, 10, 10));
    const SEL action = @selector(helperAction:);
    EXPECT_FALSE([NSApp sendAction:action to:nil from:nil]);
    [NSApp setDelegate:delegate];
    EXPECT_TRUE([NSApp sendAction:action to:nil from:nil]);
    [window makeFirstResponder:inner]; // its superview has the method
    EXPECT_TRUE([NSApp sendAction:action to:nil from:nil]);
    EXPECT_FALSE([NSApp sendAction:@selector(noSuch:) to:delegate from:nil]);
    EXPECT_THAT(take_log(), ElementsAre("helper", "view"));
    [NSApp terminate:nil]; // refused
    EXPECT_THAT(take_log(), ElementsAre("should terminate"));
    [NSApp setDelegate:nil];
}

TEST_F(EventTest, TheScreensMouseReachesTheWindowUnderItAndStaysWithItWhileDown) {
    event_view(content, NSMakeRect(0, 0, 400, 300));
    NSWindow* front = [[[NSWindow alloc] initWithContentRect:NSMakeRect(300, 250, 100, 100)
                                                   styleMask:NSBorderlessWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES] autorelease];
    [front setReleasedWhenClosed:NO];
    TestEventView* small = event_view([front contentView], NSMakeRect(0, 0, 100, 100));
    [front orderFront:nil];
    std::vector<std::string> of_front;
    small->log = &of_front;
    const auto next = [] {
        return [NSApp nextEventMatchingMask:NSAnyEventMask
                                  untilDate:[NSDate distantPast]
                                     inMode:NSDefaultRunLoopMode
                                    dequeue:YES];
    };
    // The window's content is at 100, 200 of the screen. Both points are in it, one under `front`.
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(120, 480));
    NSPostScreenMouse(NSMouseMoved, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    [NSApp sendEvent:next()];
    EXPECT_THAT(take_log(), ElementsAre("down 20 280"));
    NSEvent* drag = next();
    EXPECT_EQ([drag type], (NSEventType)NSLeftMouseDragged);
    EXPECT_EQ([drag window], window);
    EXPECT_TRUE(NSEqualPoints([drag locationInWindow], NSMakePoint(250, 100)));
    EXPECT_EQ([next() window], window);
    // The click brought its window to the front.
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    NSDispatchEvents();
    EXPECT_THAT(of_front, IsEmpty());
    EXPECT_THAT(take_log(), ElementsAre("down 250 100"));
    [front orderFront:nil];
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    // A release without a press, a press beside all windows: for no window.
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(120, 480));
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(1000, 100));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(120, 480));
    NSDispatchEvents();
    EXPECT_THAT(of_front, ElementsAre("down 50 50"));
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(EventTest, EventsOfAFreedWindowAreDropped) {
    NSWindow* other = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                                  styleMask:NSTitledWindowMask
                                                    backing:NSBackingStoreBuffered
                                                      defer:YES];
    event_view([other contentView], NSMakeRect(0, 0, 100, 100));
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(5, 5), 1, 0);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [other close];
    [pool drain];
    EXPECT_EQ(NSDispatchEvents(), 1u);
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(EventTest, TimersFireInTheirModesAndRetainTheirTargets) {
    TestHelper* ticking = [[TestHelper alloc] init];
    ticking->log = target->log;
    const auto timer = [&](NSTimeInterval interval, BOOL repeats) {
        return [NSTimer timerWithTimeInterval:interval
                                       target:ticking
                                     selector:@selector(tick:)
                                     userInfo:nil
                                      repeats:repeats];
    };
    NSTimer* once = timer(-1, NO);
    NSTimer* often = timer(0.0005, YES);
    [ticking release];
    NSRunLoop* loop = [NSRunLoop currentRunLoop];
    [loop addTimer:once forMode:NSDefaultRunLoopMode];
    [loop addTimer:once forMode:NSDefaultRunLoopMode];
    [loop addTimer:often forMode:NSEventTrackingRunLoopMode];
    // Waits as long as a timer is due, and returns nil when none is.
    const auto wait = [&](NSString* mode, NSTimeInterval seconds) {
        EXPECT_EQ([NSApp nextEventMatchingMask:NSAnyEventMask
                                     untilDate:[NSDate dateWithTimeIntervalSinceNow:seconds]
                                        inMode:mode
                                       dequeue:YES],
                  nil);
    };
    wait(NSDefaultRunLoopMode, 60);
    EXPECT_THAT(take_log(), ElementsAre("tick"));
    EXPECT_FALSE([once isValid]);
    wait(NSEventTrackingRunLoopMode, 0.02);
    EXPECT_GE(take_log().size(), 3u);
    [often fire];
    EXPECT_THAT(take_log(), ElementsAre("tick"));
    [often invalidate];
    [often fire];
    EXPECT_EQ([loop limitDateForMode:NSEventTrackingRunLoopMode], nil);
    EXPECT_THAT(take_log(), IsEmpty());
}
