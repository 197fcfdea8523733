// A window's frame, its key status and its place on the screen.
#include "NSWindowPrivate.h"

#include "NSApplicationPrivate.h"
#include "NSViewPrivate.h"
#include "NSWindowBorderView.h"
#include "Setters.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/NSScreen.h>
#include <AppKit/NSText.h>
#include <cmath>

using cocoa::WindowServer;

const CGFloat NSWindowTitleBarHeight = 22;

@implementation NSWindow
- (CGFloat)titleBarHeight {
    return _styleMask & NSTitledWindowMask ? NSWindowTitleBarHeight : 0;
}

- (id)initWithContentRect:(NSRect)content
                styleMask:(NSUInteger)mask
                  backing:(NSBackingStoreType)__attribute__((unused))backing
                    defer:(BOOL)__attribute__((unused))defer {
    self = [super init];
    if (!self) return nil;
    [NSApplication sharedApplication];
    _styleMask = mask;
    _frame = content;
    _frame.size.height += [self titleBarHeight];
    _title = @"";
    _releasedWhenClosed = YES;
    _firstResponder = self;
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
    [NSApp windowWillBeFreed:self];
    WindowServer::shared().remove(self);
    // The views leave the window; the one with the focus loses it, without an action.
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
    cocoa::set_copied(_title, title);
    [_borderView setNeedsDisplay:YES];
    if ([self isKeyWindow]) [self showTitleOnDisplay];
}
// A window without a title (an alert) leaves the display's unchanged.
- (void)showTitleOnDisplay {
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
- (BOOL)isListed {
    return YES;
}
- (BOOL)isTransparent {
    return NO;
}

- (NSRect)frame {
    return _frame;
}

- (void)setFrame:(NSRect)frame display:(BOOL)display {
    frame.size.width = std::max(frame.size.width, 0.0);
    frame.size.height = std::max(frame.size.height, 0.0);
    if (NSEqualPoints(frame.origin, _frame.origin) && NSEqualSizes(frame.size, _frame.size)) return;
    _frame = frame;
    WindowServer::shared().screen_needs_update();
    [_borderView setFrameSize:_frame.size];
    if (display) [self displayIfNeeded];
}

- (void)setFrameOrigin:(NSPoint)origin {
    [self setFrame:NSMakeRect(origin.x, origin.y, _frame.size.width, _frame.size.height)
           display:NO];
}
- (void)setContentSize:(NSSize)size {
    const double height = size.height + [self titleBarHeight];
    [self setFrame:NSMakeRect(_frame.origin.x, NSMaxY(_frame) - height, size.width, height)
           display:YES];
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

- (NSView*)contentView {
    return _contentView;
}

- (void)setContentView:(NSView*)view {
    if (view == _contentView) return;
    NSView* old = _contentView;
    _contentView = view;
    [old removeFromSuperview];
    if (!view) return;
    const double height = std::max(0.0, _frame.size.height - [self titleBarHeight]);
    [view setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [view setFrame:NSMakeRect(0, 0, _frame.size.width, height)];
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
        [NSApp chooseKeyWindow];
    }
}

- (void)close {
    // The action of one of its own buttons may close it.
    [[self retain] autorelease];
    [self orderOut:self];
    if (_releasedWhenClosed) [self release];
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
}
- (void)resignKeyWindow {
    [_borderView setNeedsDisplay:YES];
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
