// The application: its windows, its menu bar and the loop that hands events to them.
//
// 1. Whoever has a program: [NSApplication sharedApplication], windows, [NSApp setMainMenu:], then
//    [NSApp run], which tells the delegate and takes events until stop: or terminate:.
// 2. An event: nextEventMatchingMask:... takes it from the queue or the display, firing timers
//    while it waits; sendEvent: hands keys to key equivalents and the key window, all else to the
//    window of the event.
// 3. A loop of its own (tracking the mouse, a modal panel) calls nextEventMatchingMask:... itself.
//
// On a display without a user nothing can arrive while one waits: with the queue empty and no timer
// due before the date, nextEventMatchingMask:... answers nil at once, and every loop ends.
#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSResponder.h>

@class NSArray, NSDate, NSMenu, NSMutableArray, NSNotification, NSWindow;

enum { NSTerminateCancel = 0, NSTerminateNow = 1 };
typedef NSUInteger NSApplicationTerminateReply;

enum { NSRunStoppedResponse = -1000, NSRunAbortedResponse = -1001 };

FOUNDATION_EXPORT NSString* const NSEventTrackingRunLoopMode;
FOUNDATION_EXPORT NSString* const NSModalPanelRunLoopMode;
FOUNDATION_EXPORT NSString* const NSApplicationDidFinishLaunchingNotification;
FOUNDATION_EXPORT NSString* const NSApplicationWillTerminateNotification;

@class NSApplication;

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (void)applicationWillTerminate:(NSNotification*)notification;
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
    BOOL _running;
    BOOL _stopped;
    BOOL _launched;
}
+ (NSApplication*)sharedApplication;

- (id<NSApplicationDelegate>)delegate;
- (void)setDelegate:(id<NSApplicationDelegate>)delegate;
- (void)finishLaunching;
- (void)run;
- (BOOL)isRunning;
- (void)stop:(id)sender;      // after the event that is being handled
- (void)terminate:(id)sender; // asks the delegate, then exits the process

// With a nil target: the first of the key window's responders, the window's delegate, the
// application and its delegate that has the method.
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender;
- (id)targetForAction:(SEL)action to:(id)target from:(id)sender;

- (NSArray*)windows;        // all there are, in the order they were made
- (NSArray*)orderedWindows; // those on the screen, front to back
- (NSWindow*)windowWithWindowNumber:(NSInteger)number;
- (NSWindow*)keyWindow;
- (NSMenu*)mainMenu;
- (void)setMainMenu:(NSMenu*)menu;
- (void)updateWindows; // draws what needs it

// Modal loops: events of the mouse reach the modal window alone.
- (NSInteger)runModalForWindow:(NSWindow*)window;
- (void)stopModal;
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
