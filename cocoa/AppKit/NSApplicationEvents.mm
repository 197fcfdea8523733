// The event queue, and where events go.
#include "MenuBar.h"
#include "NSApplicationPrivate.h"
#include "NSEventPrivate.h"
#include "Setters.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/NSMenu.h>
#include <AppKit/NSWindow.h>
#include <chrono>
#include <Foundation/NSRunLoop.h>
#include <thread>

using cocoa::WindowServer;

NSString* const NSEventTrackingRunLoopMode = @"NSEventTrackingRunLoopMode";
NSString* const NSModalPanelRunLoopMode = @"NSModalPanelRunLoopMode";

@implementation NSApplication (NSApplicationEvents)
- (NSEvent*)takeEventMatchingMask:(NSUInteger)mask dequeue:(BOOL)dequeue {
    for (NSUInteger i = 0; i < [_queue count]; ++i) {
        NSEvent* event = [_queue objectAtIndex:i];
        if (!(mask & (NSUInteger)1 << [event type])) continue;
        [[event retain] autorelease];
        if (dequeue) {
            [_queue removeObjectAtIndex:i];
            cocoa::set_retained(_currentEvent, event);
        }
        return event;
    }
    return nil;
}

// Waits for the display's next event and moves it into the queue. One at a time: how an event is
// translated (whether anybody follows the mouse, which windows there are) may depend on the one
// before.
- (BOOL)fetchEventWithin:(NSTimeInterval)seconds {
    cocoa::DisplayEvent raw;
    if (!WindowServer::shared().display().next_event(raw, seconds)) return NO;
    NSEvent* event = WindowServer::shared().translate(raw);
    if (event) [_queue addObject:event];
    return YES;
}

- (NSEvent*)presentEventMatchingMask:(NSUInteger)mask dequeue:(BOOL)dequeue {
    NSEvent* event = [self takeEventMatchingMask:mask dequeue:dequeue];
    while (!event && [self fetchEventWithin:0])
        event = [self takeEventMatchingMask:mask dequeue:dequeue];
    return event;
}

- (NSEvent*)nextEventMatchingMask:(NSUInteger)mask
                        untilDate:(NSDate*)date
                           inMode:(NSString*)mode
                          dequeue:(BOOL)dequeue {
    const NSTimeInterval until = date ? [date timeIntervalSinceReferenceDate] : 0;
    for (;;) {
        NSEvent* event = [self presentEventMatchingMask:mask dequeue:dequeue];
        if (event) return event;
        // Timers fire here; events that they post are taken before any waiting.
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        NSDate* next = [[NSRunLoop currentRunLoop] limitDateForMode:mode];
        const bool timer = next != nil;
        const NSTimeInterval due = [next timeIntervalSinceReferenceDate];
        [pool drain];
        event = [self presentEventMatchingMask:mask dequeue:dequeue];
        if (event) return event;
        [self updateWindows];
        const NSTimeInterval now = [NSDate timeIntervalSinceReferenceDate];
        if (now >= until) return nil;
        if (!WindowServer::shared().display().has_user()) {
            if (!timer || due > until) return nil;
            std::this_thread::sleep_for(std::chrono::duration<double>(due - now));
            continue;
        }
        const NSTimeInterval end = timer ? std::min(due, until) : until;
        [self fetchEventWithin:std::max(end - now, 0.001)];
    }
}

- (NSEvent*)nextDragOrMouseUp {
    return [self nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                             untilDate:[NSDate distantFuture]
                                inMode:NSEventTrackingRunLoopMode
                               dequeue:YES];
}

- (NSEvent*)currentEvent {
    return _currentEvent;
}

- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart {
    if (!event) return;
    [_queue insertObject:event atIndex:atStart ? 0 : [_queue count]];
}

// Key equivalents: first those of the key window's views, then the menu bar's.
- (BOOL)performKeyEquivalent:(NSEvent*)event {
    NSString* key = [event charactersIgnoringModifiers];
    if (!_modalWindow && [key length] == 1 && [key characterAtIndex:0] == NSF10FunctionKey)
        return cocoa::open_menu_bar();
    if (!([event modifierFlags] & (NSCommandKeyMask | NSControlKeyMask))) return NO;
    if ([_keyWindow performKeyEquivalent:event]) return YES;
    return !_modalWindow && [_mainMenu performKeyEquivalent:event];
}

- (void)sendEvent:(NSEvent*)event {
    if (!event) return;
    const NSEventType type = [event type];
    if (type == NSKeyDown) {
        if (![self performKeyEquivalent:event]) [_keyWindow sendEvent:event];
    } else if (type == NSKeyUp) {
        [_keyWindow sendEvent:event];
    } else if (type == NSApplicationDefined) {
        if ([event subtype] == cocoa::quit_subtype) [self terminate:self];
    } else {
        NSWindow* window = [event window];
        if (_modalWindow && window != _modalWindow) return;
        [window sendEvent:event];
    }
}
@end
