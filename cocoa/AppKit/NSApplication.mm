// The application's life, its windows and its actions.
#include <AppKit/NSApplication.h>

#include "Internal.h"
#include "MenuBar.h"
#include "WindowServer.h"

#include <cstdlib>

using cocoa::WindowServer;

NSApplication* NSApp = nil;

NSString* const NSApplicationDidFinishLaunchingNotification =
    @"NSApplicationDidFinishLaunchingNotification";
NSString* const NSApplicationWillTerminateNotification = @"NSApplicationWillTerminateNotification";

@implementation NSApplication
+ (NSApplication*)sharedApplication {
    if (!NSApp) NSApp = [[NSApplication alloc] init];
    return NSApp;
}

- (id)init {
    self = [super init];
    if (self) _queue = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    [_queue release];
    [_currentEvent release];
    [_mainMenu release];
    [super dealloc];
}

- (id<NSApplicationDelegate>)delegate {
    return _delegate;
}
- (void)setDelegate:(id<NSApplicationDelegate>)delegate {
    _delegate = delegate;
}

- (void)tell:(NSString*)name selector:(SEL)selector {
    NSNotification* notification = [NSNotification notificationWithName:name object:self];
    if ([_delegate respondsToSelector:selector])
        [_delegate performSelector:selector withObject:notification];
    [[NSNotificationCenter defaultCenter] postNotification:notification];
}

- (void)finishLaunching {
    if (_launched) return;
    _launched = YES;
    [self tell:NSApplicationDidFinishLaunchingNotification
        selector:@selector(applicationDidFinishLaunching:)];
}

- (void)run {
    if (_running) return;
    _running = YES;
    _stopped = NO;
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [self finishLaunching];
    while (!_stopped) {
        NSEvent* event = [self nextEventMatchingMask:NSAnyEventMask
                                           untilDate:[NSDate distantFuture]
                                              inMode:NSDefaultRunLoopMode
                                             dequeue:YES];
        if (!event) break;
        [self sendEvent:event];
        [pool drain];
        pool = [[NSAutoreleasePool alloc] init];
    }
    [pool drain];
    _running = NO;
}

- (BOOL)isRunning {
    return _running;
}

// A loop that waits must see that it is to end: an event of no meaning wakes it.
- (void)wake {
    [self postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                       location:NSZeroPoint
                                  modifierFlags:0
                                      timestamp:0
                                   windowNumber:0
                                        context:nil
                                        subtype:0
                                          data1:0
                                          data2:0]
            atStart:YES];
}

- (void)stop:(id)__attribute__((unused))sender {
    if (_modalWindow && !_modalEnded) {
        [self stopModal];
        return;
    }
    _stopped = YES;
    [self wake];
}

- (void)terminate:(id)__attribute__((unused))sender {
    if ([_delegate respondsToSelector:@selector(applicationShouldTerminate:)] &&
        [_delegate applicationShouldTerminate:self] == NSTerminateCancel)
        return;
    [self tell:NSApplicationWillTerminateNotification
        selector:@selector(applicationWillTerminate:)];
    std::exit(0);
}

// Actions.

- (id)targetForAction:(SEL)action to:(id)target from:(id)__attribute__((unused))sender {
    if (!action) return nil;
    if (target) return [target respondsToSelector:action] ? target : nil;
    for (NSResponder* r = [_keyWindow firstResponder]; r; r = [r nextResponder])
        if ([r respondsToSelector:action]) return r;
    if ([_keyWindow respondsToSelector:action]) return _keyWindow;
    if ([(id)[_keyWindow delegate] respondsToSelector:action]) return (id)[_keyWindow delegate];
    if ([self respondsToSelector:action]) return self;
    return [(id)_delegate respondsToSelector:action] ? (id)_delegate : nil;
}

- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender {
    target = [self targetForAction:action to:target from:sender];
    if (!target) return NO;
    // The action may free the one or the other.
    [[target retain] autorelease];
    [[sender retain] autorelease];
    [target performSelector:action withObject:sender];
    return YES;
}

// Windows.

- (NSArray*)windows {
    NSMutableArray* windows = [NSMutableArray array];
    for (NSWindow* window : WindowServer::shared().all())
        if ([window isListed]) [windows addObject:window];
    return windows;
}
- (NSArray*)orderedWindows {
    NSMutableArray* windows = [NSMutableArray array];
    for (NSWindow* window : WindowServer::shared().ordered())
        if ([window isListed]) [windows addObject:window];
    return windows;
}
- (NSWindow*)windowWithWindowNumber:(NSInteger)number {
    return WindowServer::shared().window_with_number(number);
}
- (NSWindow*)keyWindow {
    return _keyWindow;
}

- (void)setKeyWindow:(NSWindow*)window {
    if (window == _keyWindow) return;
    NSWindow* old = _keyWindow;
    _keyWindow = window;
    [old resignKeyWindow];
    // Whoever heard of it may have chosen another.
    if (_keyWindow != window || !window) return;
    [window tellTitle];
    [window becomeKeyWindow];
}

- (void)keyWindowNeeded {
    for (NSWindow* window : WindowServer::shared().ordered())
        if ([window isListed] && [window canBecomeKeyWindow]) {
            [window makeKeyWindow];
            return;
        }
}

- (void)windowIsGone:(NSWindow*)window {
    if (_modalWindow == window) _modalWindow = nil;
    if (_keyWindow != window) return;
    _keyWindow = nil;
    WindowServer::shared().order_out(window);
    [self keyWindowNeeded];
}

- (void)lastWindowMayHaveClosed {
    if (!_running || [[self orderedWindows] count]) return;
    if ([_delegate
            respondsToSelector:@selector(applicationShouldTerminateAfterLastWindowClosed:)] &&
        [_delegate applicationShouldTerminateAfterLastWindowClosed:self])
        [self terminate:self];
}

- (NSMenu*)mainMenu {
    return _mainMenu;
}
- (void)setMainMenu:(NSMenu*)menu {
    if (menu == _mainMenu) return;
    [_mainMenu release];
    _mainMenu = [menu retain];
    cocoa::show_menu_bar(_mainMenu);
}
- (void)updateWindows {
    WindowServer::shared().update();
}

// Modal loops.

- (NSInteger)runModalForWindow:(NSWindow*)window {
    if (!window) return NSRunAbortedResponse;
    NSWindow* outer = _modalWindow;
    const BOOL outer_ended = _modalEnded;
    [window retain];
    _modalWindow = window;
    _modalEnded = NO;
    _modalCode = NSRunAbortedResponse;
    if ([window level] < NSModalPanelWindowLevel) [window setLevel:NSModalPanelWindowLevel];
    [window makeKeyAndOrderFront:self];
    while (!_modalEnded && _modalWindow == window) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        NSEvent* event = [self nextEventMatchingMask:NSAnyEventMask
                                           untilDate:[NSDate distantFuture]
                                              inMode:NSModalPanelRunLoopMode
                                             dequeue:YES];
        const BOOL dry = !event;
        if (event) [self sendEvent:event];
        [pool drain];
        if (dry) break;
    }
    _modalWindow = outer;
    _modalEnded = outer_ended;
    [window release];
    return _modalCode;
}

- (void)stopModal {
    [self stopModalWithCode:NSRunStoppedResponse];
}
- (void)stopModalWithCode:(NSInteger)code {
    if (!_modalWindow) return;
    _modalCode = code;
    _modalEnded = YES;
    [self wake];
}
- (void)abortModal {
    [self stopModalWithCode:NSRunAbortedResponse];
}
- (NSWindow*)modalWindow {
    return _modalWindow;
}
@end
