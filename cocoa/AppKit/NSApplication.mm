// The application's windows, actions and modal loops.
#include "NSApplicationPrivate.h"

#include "MenuBar.h"
#include "NSEventPrivate.h"
#include "NSWindowPrivate.h"
#include "Setters.h"
#include "WindowServer.h"

#include <AppKit/NSMenu.h>
#include <cstdlib>

using cocoa::WindowServer;

NSApplication* NSApp = nil;

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

- (void)setDelegate:(id<NSApplicationDelegate>)delegate {
    _delegate = delegate;
}

// Wakes a waiting loop with an event that nobody handles, so that it sees that it has ended.
- (void)wake {
    [self postEvent:[NSEvent applicationEvent:0] atStart:YES];
}

- (void)terminate:(id)__attribute__((unused))sender {
    if ([_delegate respondsToSelector:@selector(applicationShouldTerminate:)] &&
        [_delegate applicationShouldTerminate:self] == NSTerminateCancel)
        return;
    std::exit(0);
}

// Actions.

- (id)targetForAction:(SEL)action to:(id)target from:(id)__attribute__((unused))sender {
    if (!action) return nil;
    if (target) return [target respondsToSelector:action] ? target : nil;
    for (NSResponder* r = [_keyWindow firstResponder]; r; r = [r nextResponder])
        if ([r respondsToSelector:action]) return r;
    if ([_keyWindow respondsToSelector:action]) return _keyWindow;
    if ([self respondsToSelector:action]) return self;
    return [(id)_delegate respondsToSelector:action] ? (id)_delegate : nil;
}

- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender {
    target = [self targetForAction:action to:target from:sender];
    if (!target) return NO;
    // The action may free either.
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
- (NSWindow*)keyWindow {
    return _keyWindow;
}

- (void)setKeyWindow:(NSWindow*)window {
    if (window == _keyWindow) return;
    NSWindow* old = _keyWindow;
    _keyWindow = window;
    [old resignKeyWindow];
    // It may have chosen another.
    if (_keyWindow != window || !window) return;
    [window showTitleOnDisplay];
    [window becomeKeyWindow];
}

- (void)chooseKeyWindow {
    for (NSWindow* window : WindowServer::shared().ordered())
        if ([window isListed] && [window canBecomeKeyWindow]) {
            [window makeKeyWindow];
            return;
        }
}

- (void)windowWillBeFreed:(NSWindow*)window {
    if (_modalWindow == window) _modalWindow = nil;
    if (_keyWindow != window) return;
    _keyWindow = nil;
    WindowServer::shared().order_out(window);
    [self chooseKeyWindow];
}

- (NSMenu*)mainMenu {
    return _mainMenu;
}
- (void)setMainMenu:(NSMenu*)menu {
    cocoa::set_retained(_mainMenu, menu);
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
        const BOOL none = !event;
        if (event) [self sendEvent:event];
        [pool drain];
        if (none) break;
    }
    _modalWindow = outer;
    _modalEnded = outer_ended;
    [window release];
    return _modalCode;
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
