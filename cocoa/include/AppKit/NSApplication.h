// The application: its windows, its menu bar and the events for them.
//
// 1. A program: [NSApplication sharedApplication], windows, [NSApp setMainMenu:], then a loop of
//    nextEventMatchingMask:... and sendEvent:.
// 2. nextEventMatchingMask:... takes an event from the queue or the display, firing timers while it
//    waits; sendEvent: passes keys to key equivalents and the key window, all else to the window of
//    the event.
// 3. Nested loops (tracking the mouse, a modal panel) call nextEventMatchingMask:... themselves.
//
// On a display without a user nothing can arrive during a wait: with the queue empty and no timer
// due before the date, nextEventMatchingMask:... returns nil at once, and every loop ends.
#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSResponder.h>

@class NSArray, NSDate, NSMenu, NSMutableArray, NSWindow;

enum { NSTerminateCancel = 0 };
typedef NSUInteger NSApplicationTerminateReply;

enum { NSRunAbortedResponse = -1001 };

FOUNDATION_EXPORT NSString* const NSEventTrackingRunLoopMode;
FOUNDATION_EXPORT NSString* const NSModalPanelRunLoopMode;

@class NSApplication;

@protocol NSApplicationDelegate <NSObject>
@optional
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
@end

@interface NSApplication : NSResponder {
  @private
    NSMutableArray* _queue;
    NSEvent* _currentEvent;
    NSMenu* _mainMenu;
    NSWindow* _keyWindow;   // not retained
    NSWindow* _modalWindow; // not retained
    NSInteger _modalCode;
    id<NSApplicationDelegate> _delegate; // not retained
    BOOL _modalEnded;
}
+ (NSApplication*)sharedApplication;

- (void)setDelegate:(id<NSApplicationDelegate>)delegate;
- (void)terminate:(id)sender; // asks the delegate, then exits the process

// With a nil target: the first of the key window's responders, the application and its delegate
// that has the method.
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender;
- (id)targetForAction:(SEL)action to:(id)target from:(id)sender;

- (NSArray*)windows; // in the order in which they were made
- (NSWindow*)keyWindow;
- (NSMenu*)mainMenu;
- (void)setMainMenu:(NSMenu*)menu;
- (void)updateWindows; // draws what needs it

// Modal loops: the mouse reaches only the modal window.
- (NSInteger)runModalForWindow:(NSWindow*)window;
- (void)stopModalWithCode:(NSInteger)code;
- (void)abortModal;
- (NSWindow*)modalWindow;
@end

@interface NSApplication (NSApplicationEvents)
- (NSEvent*)nextEventMatchingMask:(NSUInteger)mask
                        untilDate:(NSDate*)date
                           inMode:(NSString*)mode
                          dequeue:(BOOL)dequeue;
- (NSEvent*)currentEvent; // the last that was taken from the queue
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart;
- (void)sendEvent:(NSEvent*)event;
@end

FOUNDATION_EXPORT NSApplication* NSApp;
