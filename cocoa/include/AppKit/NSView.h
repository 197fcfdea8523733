// A rectangle of a window that draws and takes events. Its frame is in the coordinates of its
// superview, its bounds in its own; a flipped view has its origin at the top left, y downwards.
// A view's scale is its superview's: the bounds differ from the frame in origin alone.
#pragma once

#include <AppKit/NSResponder.h>

@class NSMutableArray, NSWindow;

enum {
    NSViewNotSizable = 0,
    NSViewMinXMargin = 1,
    NSViewWidthSizable = 2,
    NSViewMaxXMargin = 4,
    NSViewMinYMargin = 8,
    NSViewHeightSizable = 16,
    NSViewMaxYMargin = 32
};

enum { NSWindowAbove = 1, NSWindowBelow = -1, NSWindowOut = 0 };
typedef NSInteger NSWindowOrderingMode;

@interface NSView : NSResponder {
  @private
    NSRect _frame;
    NSPoint _boundsOrigin;
    NSView* _superview; // not retained
    NSMutableArray* _subviews;
    NSWindow* _window; // not retained
    NSUInteger _autoresizingMask;
    NSView* _nextKeyView;     // not retained
    NSView* _previousKeyView; // not retained
    BOOL _hidden;
    BOOL _autoresizesSubviews;
    BOOL _needsDisplay;
}
- (id)initWithFrame:(NSRect)frame;

// Hierarchy. A view is retained by its superview alone.
- (NSArray*)subviews; // back to front
- (NSView*)superview;
- (NSWindow*)window;
- (void)addSubview:(NSView*)view; // in front; a view that has another superview is taken from it
- (void)addSubview:(NSView*)view
        positioned:(NSWindowOrderingMode)place
        relativeTo:(NSView*)other; // nil: in front or behind of all
- (void)removeFromSuperview;
- (BOOL)isDescendantOf:(NSView*)view; // of itself as well
- (id)viewWithTag:(NSInteger)tag;     // itself or the first such view below it, depth first
- (NSInteger)tag;                     // -1
- (void)viewWillMoveToWindow:(NSWindow*)window;
- (void)viewDidMoveToWindow;
- (void)viewDidMoveToSuperview;

- (BOOL)isHidden;
- (void)setHidden:(BOOL)flag;
- (BOOL)isHiddenOrHasHiddenAncestor;

// The order in which Tab visits the views of a window. Where no next key view is set, it is the
// order of the views: each after its superview, siblings as they were added.
- (NSView*)nextKeyView;
- (void)setNextKeyView:(NSView*)view; // not retained
- (NSView*)previousKeyView;
- (NSView*)nextValidKeyView;
- (NSView*)previousValidKeyView;
- (BOOL)canBecomeKeyView;
@end

@interface NSView (NSViewGeometry)
- (NSRect)frame;
- (void)setFrame:(NSRect)frame;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)setFrameSize:(NSSize)size;
- (NSRect)bounds;
- (void)setBoundsOrigin:(NSPoint)origin; // scrolls what the view shows
- (BOOL)isFlipped;                       // NO
- (NSRect)visibleRect;                   // the part of the bounds that no superview clips away
- (NSPoint)convertPoint:(NSPoint)point fromView:(NSView*)view; // nil: the window
- (NSPoint)convertPoint:(NSPoint)point toView:(NSView*)view;
- (NSRect)convertRect:(NSRect)rect fromView:(NSView*)view;
- (NSRect)convertRect:(NSRect)rect toView:(NSView*)view;

// Resizing with the superview. Where several of width (height) and margins are flexible, they share
// the change in proportion to their sizes.
- (NSUInteger)autoresizingMask;
- (void)setAutoresizingMask:(NSUInteger)mask;
- (BOOL)autoresizesSubviews; // YES
- (void)setAutoresizesSubviews:(BOOL)flag;
- (void)resizeSubviewsWithOldSize:(NSSize)size;
- (void)resizeWithOldSuperviewSize:(NSSize)size;

// Events. The point is in the superview's coordinates.
- (NSView*)hitTest:(NSPoint)point;
- (BOOL)mouse:(NSPoint)point inRect:(NSRect)rect;
- (BOOL)acceptsFirstMouse:(NSEvent*)event; // NO
@end

// Drawing. A view is drawn after its superview and clipped to its bounds.
@interface NSView (NSViewDrawing)
- (BOOL)isOpaque; // NO
- (BOOL)needsDisplay;
- (void)setNeedsDisplay:(BOOL)flag;
- (void)setNeedsDisplayInRect:(NSRect)rect;
- (void)display; // draws now
- (void)displayIfNeeded;
- (void)drawRect:(NSRect)dirty;
- (void)lockFocus;
- (void)unlockFocus;
@end
