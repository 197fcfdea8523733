// A window's life, its frame and its place on the screen.
#include <AppKit/NSWindow.h>

#include "BorderView.h"
#include "Internal.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/NSScreen.h>
#include <cmath>

using cocoa::WindowServer;

const CGFloat NSWindowTitleBarHeight = 22;

NSString* const NSWindowWillCloseNotification = @"NSWindowWillCloseNotification";
NSString* const NSWindowDidResizeNotification = @"NSWindowDidResizeNotification";
NSString* const NSWindowDidMoveNotification = @"NSWindowDidMoveNotification";
NSString* const NSWindowDidBecomeKeyNotification = @"NSWindowDidBecomeKeyNotification";
NSString* const NSWindowDidResignKeyNotification = @"NSWindowDidResignKeyNotification";

@implementation NSWindow
+ (NSRect)frameRectForContentRect:(NSRect)content styleMask:(NSUInteger)mask {
    if (mask & NSTitledWindowMask) content.size.height += NSWindowTitleBarHeight;
    return content;
}
+ (NSRect)contentRectForFrameRect:(NSRect)frame styleMask:(NSUInteger)mask {
    if (mask & NSTitledWindowMask)
        frame.size.height = std::max(0.0, frame.size.height - NSWindowTitleBarHeight);
    return frame;
}
- (NSRect)frameRectForContentRect:(NSRect)content {
    return [NSWindow frameRectForContentRect:content styleMask:_styleMask];
}
- (NSRect)contentRectForFrameRect:(NSRect)frame {
    return [NSWindow contentRectForFrameRect:frame styleMask:_styleMask];
}

- (id)initWithContentRect:(NSRect)content
                styleMask:(NSUInteger)mask
                  backing:(NSBackingStoreType)__attribute__((unused))backing
                    defer:(BOOL)__attribute__((unused))defer {
    self = [super init];
    if (!self) return nil;
    [NSApplication sharedApplication];
    _styleMask = mask;
    _frame = [self frameRectForContentRect:content];
    _title = @"";
    _releasedWhenClosed = YES;
    _firstResponder = self;
    _minSize = NSMakeSize(80, NSWindowTitleBarHeight + 20);
    _state = new NSWindowState();
    _windowNumber = WindowServer::shared().add(self);
    _borderView = [[NSWindowBorderView alloc]
        initWithFrame:NSMakeRect(0, 0, _frame.size.width, _frame.size.height)];
    [_borderView moveToWindow:self];
    [_borderView setNextResponder:self];
    NSView* view = [[NSView alloc] initWithFrame:NSZeroRect];
    [self setContentView:view];
    [view release];
    return self;
}

- (void)dealloc {
    _delegate = nil;
    [NSApp windowIsGone:self];
    WindowServer::shared().remove(self);
    // The views leave; the one with the focus loses it, without an action.
    [_borderView moveToWindow:nil];
    [_borderView release];
    [_fieldEditor release];
    [_title release];
    delete _state;
    [super dealloc];
}

- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    if (title == _title) return;
    [_title release];
    _title = title ? [title copy] : @"";
    [_borderView setNeedsDisplay:YES];
    if ([self isKeyWindow]) [self tellTitle];
}
// A window without a title (an alert) leaves the display's as it is.
- (void)tellTitle {
    if ([_title length]) WindowServer::shared().display().set_title([_title UTF8String]);
}
- (NSUInteger)styleMask {
    return _styleMask;
}
- (NSInteger)windowNumber {
    return _windowNumber;
}
- (NSInteger)level {
    return _level;
}
- (void)setLevel:(NSInteger)level {
    if (level == _level) return;
    _level = level;
    if (_visible) WindowServer::shared().order_front(self);
}
- (NSScreen*)screen {
    return [NSScreen mainScreen];
}
- (id<NSWindowDelegate>)delegate {
    return _delegate;
}
- (void)setDelegate:(id<NSWindowDelegate>)delegate {
    _delegate = delegate;
}
- (BOOL)isListed {
    return YES;
}
- (BOOL)isTransparent {
    return NO;
}

// The delegate hears of it first, then whoever observes.
- (void)tell:(NSString*)name selector:(SEL)selector {
    NSNotification* notification = [NSNotification notificationWithName:name object:self];
    if ([_delegate respondsToSelector:selector])
        [_delegate performSelector:selector withObject:notification];
    [[NSNotificationCenter defaultCenter] postNotification:notification];
}

- (NSRect)frame {
    return _frame;
}

- (void)sizeBorderToFrame {
    [_borderView setFrameSize:_frame.size];
}

- (void)setFrame:(NSRect)frame display:(BOOL)display {
    frame.size.width = std::max(frame.size.width, 0.0);
    frame.size.height = std::max(frame.size.height, 0.0);
    const BOOL moved = !NSEqualPoints(frame.origin, _frame.origin);
    const BOOL sized = !NSEqualSizes(frame.size, _frame.size);
    if (!moved && !sized) return;
    [[self retain] autorelease];
    _frame = frame;
    WindowServer::shared().screen_needs_update();
    if (sized) {
        [self sizeBorderToFrame];
        [self tell:NSWindowDidResizeNotification selector:@selector(windowDidResize:)];
    }
    if (moved) [self tell:NSWindowDidMoveNotification selector:@selector(windowDidMove:)];
    if (display) [self displayIfNeeded];
}

- (void)setFrameOrigin:(NSPoint)origin {
    [self setFrame:NSMakeRect(origin.x, origin.y, _frame.size.width, _frame.size.height)
           display:NO];
}
- (void)setFrameTopLeftPoint:(NSPoint)point {
    [self setFrameOrigin:NSMakePoint(point.x, point.y - _frame.size.height)];
}
- (void)setContentSize:(NSSize)size {
    NSRect frame =
        [self frameRectForContentRect:NSMakeRect(_frame.origin.x, 0, size.width, size.height)];
    frame.origin.y = NSMaxY(_frame) - frame.size.height;
    [self setFrame:frame display:YES];
}
- (NSSize)minSize {
    return _minSize;
}
- (void)setMinSize:(NSSize)size {
    _minSize = size;
}

- (void)center {
    const NSRect room = [[NSScreen mainScreen] visibleFrame];
    const double x = NSMinX(room) + (NSWidth(room) - NSWidth(_frame)) / 2;
    const double y = NSMinY(room) + (NSHeight(room) - NSHeight(_frame)) * 2 / 3;
    [self setFrameOrigin:NSMakePoint(std::floor(x), std::floor(y))];
}

- (void)zoom:(id)__attribute__((unused))sender {
    _zoomed = !_zoomed;
    if (_zoomed) _unzoomedFrame = _frame;
    [self setFrame:_zoomed ? [[NSScreen mainScreen] visibleFrame] : _unzoomedFrame display:YES];
}
- (BOOL)isZoomed {
    return _zoomed;
}

- (void)screenDidChange {
    [self addDirtyRect:[_borderView frame]];
    if (_zoomed) [self setFrame:[[NSScreen mainScreen] visibleFrame] display:NO];
}

- (NSPoint)convertBaseToScreen:(NSPoint)point {
    return NSMakePoint(point.x + _frame.origin.x, point.y + _frame.origin.y);
}
- (NSPoint)convertScreenToBase:(NSPoint)point {
    return NSMakePoint(point.x - _frame.origin.x, point.y - _frame.origin.y);
}

- (NSView*)borderView {
    return _borderView;
}
- (NSView*)contentView {
    return _contentView;
}

- (void)setContentView:(NSView*)view {
    if (view == _contentView) return;
    NSView* old = _contentView;
    _contentView = view;
    [old removeFromSuperview];
    if (!view) return;
    NSRect frame = [self contentRectForFrameRect:_frame];
    frame.origin = NSZeroPoint;
    [view setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [view setFrame:frame];
    [_borderView addSubview:view];
}

// On and off the screen.

- (BOOL)isVisible {
    return _visible;
}
- (void)setVisibleFlag:(BOOL)flag {
    if (flag && !_visible) [self addDirtyRect:[_borderView frame]];
    _visible = flag;
}

- (void)makeKeyAndOrderFront:(id)sender {
    [self orderFront:sender];
    [self makeKeyWindow];
}
- (void)orderFront:(id)__attribute__((unused))sender {
    WindowServer::shared().order_front(self);
    [self setVisibleFlag:YES];
}
- (void)orderBack:(id)__attribute__((unused))sender {
    WindowServer::shared().order_back(self);
    [self setVisibleFlag:YES];
}
- (void)orderOut:(id)__attribute__((unused))sender {
    if (!_visible) return;
    WindowServer::shared().order_out(self);
    [self setVisibleFlag:NO];
    if ([self isKeyWindow]) {
        [NSApp setKeyWindow:nil];
        [NSApp keyWindowNeeded];
    }
}

- (void)performClose:(id)sender {
    if (!(_styleMask & NSClosableWindowMask)) return;
    if ([_delegate respondsToSelector:@selector(windowShouldClose:)] &&
        ![_delegate windowShouldClose:sender ? sender : self])
        return;
    [self close];
}

- (void)close {
    // Whoever asks may be a button of this window.
    [[self retain] autorelease];
    const BOOL was_visible = _visible;
    [self tell:NSWindowWillCloseNotification selector:@selector(windowWillClose:)];
    [self orderOut:self];
    if (_releasedWhenClosed) [self release];
    if (was_visible) [NSApp lastWindowMayHaveClosed];
}
- (BOOL)isReleasedWhenClosed {
    return _releasedWhenClosed;
}
- (void)setReleasedWhenClosed:(BOOL)flag {
    _releasedWhenClosed = !!flag;
}

- (BOOL)canBecomeKeyWindow {
    return (_styleMask & NSTitledWindowMask) != 0;
}
- (BOOL)isKeyWindow {
    return [NSApp keyWindow] == self;
}
- (void)makeKeyWindow {
    if ([self canBecomeKeyWindow]) [NSApp setKeyWindow:self];
}

- (void)becomeKeyWindow {
    if (_firstResponder == self && _initialFirstResponder)
        [self makeFirstResponder:_initialFirstResponder];
    [_borderView setNeedsDisplay:YES];
    [self tell:NSWindowDidBecomeKeyNotification selector:@selector(windowDidBecomeKey:)];
}
- (void)resignKeyWindow {
    [_borderView setNeedsDisplay:YES];
    [self tell:NSWindowDidResignKeyNotification selector:@selector(windowDidResignKey:)];
}
@end

@implementation NSMenuWindow
- (BOOL)isListed {
    return NO;
}
- (BOOL)isTransparent {
    return YES;
}
@end
