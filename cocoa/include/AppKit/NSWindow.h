// A window. Its frame is in screen coordinates (points, y upwards); a titled window's frame is
// higher than its content by the title bar (NSWindowTitleBarHeight). A window is made hidden. It
// belongs to whoever made it: the list of windows holds no reference.
#pragma once

#include <AppKit/NSResponder.h>
#include <AppKit/NSView.h>

@class NSEvent, NSNotification, NSScreen, NSText;

enum {
    NSBorderlessWindowMask = 0,
    NSTitledWindowMask = 1,
    NSClosableWindowMask = 2,
    NSMiniaturizableWindowMask = 4,
    NSResizableWindowMask = 8
};

enum { NSBackingStoreRetained = 0, NSBackingStoreNonretained = 1, NSBackingStoreBuffered = 2 };
typedef NSUInteger NSBackingStoreType;

enum {
    NSNormalWindowLevel = 0,
    NSFloatingWindowLevel = 3,
    NSModalPanelWindowLevel = 8,
    NSPopUpMenuWindowLevel = 101
};

@protocol NSWindowDelegate <NSObject>
@optional
- (BOOL)windowShouldClose:(id)sender;
- (void)windowWillClose:(NSNotification*)notification;
- (void)windowDidResize:(NSNotification*)notification;
- (void)windowDidMove:(NSNotification*)notification;
- (void)windowDidBecomeKey:(NSNotification*)notification;
- (void)windowDidResignKey:(NSNotification*)notification;
@end

FOUNDATION_EXPORT NSString* const NSWindowWillCloseNotification;
FOUNDATION_EXPORT NSString* const NSWindowDidResizeNotification;
FOUNDATION_EXPORT NSString* const NSWindowDidMoveNotification;
FOUNDATION_EXPORT NSString* const NSWindowDidBecomeKeyNotification;
FOUNDATION_EXPORT NSString* const NSWindowDidResignKeyNotification;

struct NSWindowState;

@interface NSWindow : NSResponder {
  @private
    NSRect _frame;
    NSUInteger _styleMask;
    NSInteger _windowNumber;
    NSInteger _level;
    NSString* _title;
    NSView* _borderView;
    NSView* _contentView; // held by the border view
    NSResponder* _firstResponder;
    NSView* _initialFirstResponder; // not retained
    NSView* _mouseView;             // has the mouse from its button's down to its up
    NSText* _fieldEditor;
    id<NSWindowDelegate> _delegate; // not retained
    NSSize _minSize;
    NSRect _unzoomedFrame;
    BOOL _zoomed;
    BOOL _visible;
    BOOL _releasedWhenClosed;
    BOOL _acceptsMouseMoved;
    struct NSWindowState* _state; // pixels and what of them is to be drawn again
}
- (id)initWithContentRect:(NSRect)content
                styleMask:(NSUInteger)mask
                  backing:(NSBackingStoreType)backing
                    defer:(BOOL)defer;

+ (NSRect)frameRectForContentRect:(NSRect)content styleMask:(NSUInteger)mask;
+ (NSRect)contentRectForFrameRect:(NSRect)frame styleMask:(NSUInteger)mask;
- (NSRect)frameRectForContentRect:(NSRect)content;
- (NSRect)contentRectForFrameRect:(NSRect)frame;

- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (NSUInteger)styleMask;
- (NSInteger)windowNumber;
- (NSInteger)level;
- (void)setLevel:(NSInteger)level;
- (NSScreen*)screen;
- (id<NSWindowDelegate>)delegate;
- (void)setDelegate:(id<NSWindowDelegate>)delegate;

- (NSRect)frame;
- (void)setFrame:(NSRect)frame display:(BOOL)display;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)setFrameTopLeftPoint:(NSPoint)point;
- (void)setContentSize:(NSSize)size; // keeps the top left corner
- (NSSize)minSize;                   // of the frame, when the user resizes it
- (void)setMinSize:(NSSize)size;
- (void)center;          // in the visible part of the screen, a little above its middle
- (void)zoom:(id)sender; // fills the visible part of the screen, or goes back
- (BOOL)isZoomed;
- (NSPoint)convertBaseToScreen:(NSPoint)point;
- (NSPoint)convertScreenToBase:(NSPoint)point;

- (NSView*)contentView;
- (void)setContentView:(NSView*)view; // fills the content rectangle and follows it

// On and off the screen. orderFront: and orderBack: both show a window that was hidden, among the
// windows of its level, and leave the key window as it is.
- (BOOL)isVisible;
- (void)makeKeyAndOrderFront:(id)sender;
- (void)orderFront:(id)sender;
- (void)orderBack:(id)sender;
- (void)orderOut:(id)sender;
- (void)performClose:(id)sender; // asks the delegate; only a window with a close button closes
- (void)close;                   // releases the window once if it is released when closed
- (BOOL)isReleasedWhenClosed;    // YES
- (void)setReleasedWhenClosed:(BOOL)flag;

// The key window gets the keys. Windows with a title bar can be it.
- (BOOL)canBecomeKeyWindow;
- (BOOL)isKeyWindow;
- (void)makeKeyWindow;
- (void)becomeKeyWindow;
- (void)resignKeyWindow;
@end

@interface NSWindow (NSWindowResponder)
- (NSResponder*)firstResponder; // the window itself if no view is it
- (BOOL)makeFirstResponder:(NSResponder*)responder;
- (NSView*)initialFirstResponder;
- (void)setInitialFirstResponder:(NSView*)view;
- (void)selectNextKeyView:(id)sender;
- (void)selectPreviousKeyView:(id)sender;

// The one text view in which all fields of the window are edited in turn.
- (NSText*)fieldEditor:(BOOL)create forObject:(id)object;
- (void)endEditingFor:(id)object;

- (BOOL)acceptsMouseMovedEvents; // NO
- (void)setAcceptsMouseMovedEvents:(BOOL)flag;
- (void)sendEvent:(NSEvent*)event;
@end

@interface NSWindow (NSWindowDrawing)
- (void)setViewsNeedDisplay:(BOOL)flag;
- (void)display;
- (void)displayIfNeeded;
- (void)flushWindow; // brings what was drawn to the screen
@end

// How much higher than its content a titled window is.
FOUNDATION_EXPORT const CGFloat NSWindowTitleBarHeight;
