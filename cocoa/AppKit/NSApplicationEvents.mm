// The event queue, and who gets which event.
#include "Internal.h"
#include "MenuBar.h"
#include "WindowServer.h"

#include <algorithm>
#include <Foundation/NSRunLoop.h>

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
            [_currentEvent release];
            _currentEvent = [event retain];
        }
        return event;
    }
    return nil;
}

// Moves the display's next event into the queue, after waiting for it. One at a time: what becomes
// of an event (whether anybody follows the mouse, which windows there are) may hang on the one
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
        // Timers fire here; what they set off is looked at before anything is waited for.
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
            [[NSRunLoop currentRunLoop]
                   runMode:mode
                beforeDate:[NSDate dateWithTimeIntervalSinceReferenceDate:due]];
            continue;
        }
        const NSTimeInterval end = timer ? std::min(due, until) : until;
        [self fetchEventWithin:std::max(end - now, 0.001)];
    }
}

- (NSEvent*)currentEvent {
    return _currentEvent;
}

- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart {
    if (!event) return;
    [_queue insertObject:event atIndex:atStart ? 0 : [_queue count]];
}

// Key equivalents: commands are looked for in the key window's views, then in the menu bar.
- (BOOL)isKeyEquivalent:(NSEvent*)event {
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
        if (![self isKeyEquivalent:event]) [_keyWindow sendEvent:event];
    } else if (type == NSKeyUp) {
        [_keyWindow sendEvent:event];
    } else if (type == NSApplicationDefined) {
        if ([event subtype] == cocoa::quit_subtype) [self terminate:self];
    } else {
        NSWindow* window = [event window];
        // A modal window has the mouse for itself.
        if (_modalWindow && window != _modalWindow) return;
        [window sendEvent:event];
    }
}
@end
