// A window. Its frame is in screen coordinates (points, y upwards); a titled window's frame is
// higher than its content by the title bar (NSWindowTitleBarHeight). A new window is hidden. The
// list of windows does not retain it.
#pragma once

#include <AppKit/NSResponder.h>
#include <AppKit/NSView.h>

@class NSEvent, NSText;

enum { NSBorderlessWindowMask = 0, NSTitledWindowMask = 1, NSResizableWindowMask = 8 };

enum { NSBackingStoreBuffered = 2 };
typedef NSUInteger NSBackingStoreType;

enum { NSNormalWindowLevel = 0, NSModalPanelWindowLevel = 8, NSPopUpMenuWindowLevel = 101 };

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
    NSText* _fieldEditor;
    NSRect _unzoomedFrame;
    BOOL _zoomed;
    BOOL _visible;
    BOOL _releasedWhenClosed;
    struct NSWindowState* _state;
}
- (id)initWithContentRect:(NSRect)content
                styleMask:(NSUInteger)mask
                  backing:(NSBackingStoreType)backing
                    defer:(BOOL)defer;

- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (NSUInteger)styleMask;
- (NSInteger)windowNumber;
- (NSInteger)level;
- (void)setLevel:(NSInteger)level;

- (NSRect)frame;
- (void)setFrame:(NSRect)frame display:(BOOL)display;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)setContentSize:(NSSize)size; // keeps the top left corner
- (void)center;                      // in the visible part of the screen, a little above its middle
- (void)zoom:(id)sender;             // fills the visible part of the screen, or restores the frame
- (BOOL)isZoomed;
- (NSPoint)convertBaseToScreen:(NSPoint)point;
- (NSPoint)convertScreenToBase:(NSPoint)point;

- (NSView*)contentView;
- (void)setContentView:(NSView*)view; // fills the content rectangle and follows it

// On and off the screen. orderFront: and orderBack: both show a hidden window, among the windows of
// its level, and do not change the key window.
- (BOOL)isVisible;
- (void)makeKeyAndOrderFront:(id)sender;
- (void)orderFront:(id)sender;
- (void)orderBack:(id)sender;
- (void)orderOut:(id)sender;
- (void)close; // releases the window once if it is released when closed
- (void)setReleasedWhenClosed:(BOOL)flag;

// The key window receives the keys. Windows with a title bar can be it.
- (BOOL)canBecomeKeyWindow;
- (BOOL)isKeyWindow;
- (void)makeKeyWindow;
- (void)becomeKeyWindow;
- (void)resignKeyWindow;
@end

@interface NSWindow (NSWindowResponder)
- (NSResponder*)firstResponder; // the window itself if no view has the focus
- (BOOL)makeFirstResponder:(NSResponder*)responder;
- (void)setInitialFirstResponder:(NSView*)view;

// The one text view in which the fields of the window are edited in turn.
- (NSText*)fieldEditor:(BOOL)create forObject:(id)object;
- (void)endEditingFor:(id)object;

- (void)sendEvent:(NSEvent*)event;
- (BOOL)performKeyEquivalent:(NSEvent*)event; // by one of its views
@end

@interface NSWindow (NSWindowDrawing)
- (void)setViewsNeedDisplay:(BOOL)flag;
- (void)displayIfNeeded;
- (void)flushWindow; // shows what was drawn on the screen
@end

// How much higher than its content a titled window is.
FOUNDATION_EXPORT const CGFloat NSWindowTitleBarHeight;
