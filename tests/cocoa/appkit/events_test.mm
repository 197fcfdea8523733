#include "AppKitTest.h"

using appkit_test::AppKitTest;
using testing::ElementsAre;
using testing::IsEmpty;

// Answers one action and the questions of a delegate.
@interface TestHelper : NSObject <NSApplicationDelegate, NSWindowDelegate> {
  @public
    std::vector<std::string>* log;
    std::string* name;
}
@end
@implementation TestHelper
- (void)helperAction:(id)__attribute__((unused))sender {
    log->push_back(*name);
}
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)__attribute__((unused))
                                                          sender {
    log->push_back("should terminate");
    return NSTerminateCancel;
}
- (void)tick:(NSTimer*)timer {
    log->push_back("tick " + std::string([(NSString*)[timer userInfo] UTF8String]));
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
    TestHelper* helper(std::string& name) {
        TestHelper* result = [[[TestHelper alloc] init] autorelease];
        result->log = target->log;
        result->name = &name;
        return result;
    }
    TestEventView* event_view(NSView* superview, NSRect frame) {
        TestEventView* view = [[[TestEventView alloc] initWithFrame:frame] autorelease];
        view->log = target->log;
        [superview addSubview:view];
        return view;
    }
};

TEST_F(EventTest, TheQueueGivesWhatTheMaskAsksForAndKeepsTheRest) {
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
    std::string window_name = "window delegate", application_name = "application delegate";
    TestHelper* of_window = helper(window_name);
    TestHelper* of_application = helper(application_name);
    TestActionView* view =
        [[[TestActionView alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)] autorelease];
    view->log = target->log;
    [content addSubview:view];
    TestEventView* inner = event_view(view, NSMakeRect(0, 0, 10, 10));
    const SEL action = @selector(helperAction:);
    EXPECT_FALSE([NSApp sendAction:action to:nil from:nil]);
    [NSApp setDelegate:of_application];
    EXPECT_TRUE([NSApp sendAction:action to:nil from:nil]);
    [window setDelegate:of_window];
    EXPECT_TRUE([NSApp sendAction:action to:nil from:nil]);
    [window makeFirstResponder:inner]; // its superview has the method
    EXPECT_TRUE([NSApp sendAction:action to:nil from:nil]);
    EXPECT_FALSE([NSApp sendAction:@selector(noSuch:) to:of_window from:nil]);
    EXPECT_THAT(take_log(), ElementsAre("application delegate", "window delegate", "view"));
    [NSApp terminate:nil]; // refused
    EXPECT_THAT(take_log(), ElementsAre("should terminate"));
    [NSApp setDelegate:nil];
    [window setDelegate:nil];
}

TEST_F(EventTest, TheScreensMouseReachesTheWindowUnderItAndStaysWithItWhileDown) {
    TestEventView* back = event_view(content, NSMakeRect(0, 0, 400, 300));
    NSWindow* front = [[[NSWindow alloc] initWithContentRect:NSMakeRect(300, 250, 100, 100)
                                                   styleMask:NSBorderlessWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES] autorelease];
    [front setReleasedWhenClosed:NO];
    TestEventView* small = event_view([front contentView], NSMakeRect(0, 0, 100, 100));
    [front orderFront:nil];
    std::vector<std::string> of_front;
    small->log = &of_front;
    // The window's content is at 100, 200 of the screen. Both points are in it, one under `front`.
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(120, 480));
    NSPostScreenMouse(NSMouseMoved, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    NSPostScreenScroll(NSMakePoint(120, 480), 0, 3);
    NSDispatchEvents();
    EXPECT_THAT(take_log(), ElementsAre("down 20 280", "drag", "up", "wheel 3.000000"));
    EXPECT_EQ([NSEvent mouseLocation].x, 120);
    EXPECT_EQ([NSEvent mouseLocation].y, 480);
    // The click brought its window to the front.
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    NSDispatchEvents();
    EXPECT_THAT(of_front, IsEmpty());
    EXPECT_THAT(take_log(), ElementsAre("down 250 100", "up"));
    [front orderFront:nil];
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(350, 300));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(350, 300));
    // A release without a press, a press beside all windows: nobody's.
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(120, 480));
    NSPostScreenMouse(NSLeftMouseDown, NSMakePoint(1000, 100));
    NSPostScreenMouse(NSLeftMouseUp, NSMakePoint(120, 480));
    NSDispatchEvents();
    EXPECT_THAT(of_front, ElementsAre("down 50 50", "up"));
    EXPECT_THAT(take_log(), IsEmpty());
    EXPECT_EQ([back window], window);
}

TEST_F(EventTest, EventsOfAWindowThatIsGoneReachNobody) {
    NSWindow* other = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                                  styleMask:NSTitledWindowMask
                                                    backing:NSBackingStoreBuffered
                                                      defer:YES];
    event_view([other contentView], NSMakeRect(0, 0, 100, 100));
    NSPostMouse(other, NSLeftMouseDown, NSMakePoint(5, 5), 1, 0);
    const NSInteger number = [other windowNumber];
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [other close];
    [pool drain];
    EXPECT_EQ([NSApp windowWithWindowNumber:number], nil);
    EXPECT_EQ(NSDispatchEvents(), 1u);
    EXPECT_THAT(take_log(), IsEmpty());
}

TEST_F(EventTest, TimersFireInTheirModesAndHoldTheirTargets) {
    std::string name = "timer";
    TestHelper* ticking = [[TestHelper alloc] init];
    ticking->log = target->log;
    ticking->name = &name;
    NSTimer* once = [NSTimer timerWithTimeInterval:-1
                                            target:ticking
                                          selector:@selector(tick:)
                                          userInfo:@"once"
                                           repeats:NO];
    NSTimer* often = [NSTimer timerWithTimeInterval:0.0005
                                             target:ticking
                                           selector:@selector(tick:)
                                           userInfo:@"often"
                                            repeats:YES];
    [ticking release]; // the timers have it
    NSRunLoop* loop = [NSRunLoop currentRunLoop];
    [loop addTimer:once forMode:NSDefaultRunLoopMode];
    [loop addTimer:once forMode:NSDefaultRunLoopMode];
    [loop addTimer:often forMode:NSEventTrackingRunLoopMode];
    EXPECT_EQ([once timeInterval], 0);
    EXPECT_EQ([often timeInterval], 0.0005);
    EXPECT_TRUE([loop runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]]);
    EXPECT_THAT(take_log(), ElementsAre("tick once"));
    EXPECT_FALSE([once isValid]);
    EXPECT_FALSE([loop runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]]);
    for (int i = 0; i < 3; ++i)
        [loop runMode:NSEventTrackingRunLoopMode beforeDate:[NSDate distantFuture]];
    EXPECT_GE(take_log().size(), 3u);
    [often fire];
    EXPECT_THAT(take_log(), ElementsAre("tick often"));
    [often invalidate];
    [often fire];
    EXPECT_EQ([loop limitDateForMode:NSEventTrackingRunLoopMode], nil);
    EXPECT_THAT(take_log(), IsEmpty());
    EXPECT_LT([[NSDate distantPast] timeIntervalSinceNow], 0);
    EXPECT_NEAR([[NSDate dateWithTimeIntervalSinceNow:50] timeIntervalSinceNow], 50, 1);
}

TEST_F(EventTest, ThePasteboardHoldsText) {
    NSPasteboard* board = [NSPasteboard generalPasteboard];
    [board clearContents];
    EXPECT_EQ([board stringForType:NSStringPboardType], nil);
    EXPECT_FALSE([board setString:@"x" forType:@"other"]);
    EXPECT_TRUE([board setString:@"Größe" forType:NSStringPboardType]);
    EXPECT_EQ(text([board stringForType:NSStringPboardType]), "Größe");
    EXPECT_EQ([board stringForType:@"other"], nil);
}
