// A rectangle of a window that draws and takes events. Its frame is in the coordinates of its
// superview, its bounds in its own, from (0, 0); a flipped view has its origin at the top left, y
// downwards.
#pragma once

#include <AppKit/NSResponder.h>

@class NSArray, NSMutableArray, NSWindow;

enum { NSViewNotSizable = 0, NSViewWidthSizable = 2, NSViewHeightSizable = 16 };

@interface NSView : NSResponder {
  @private
    NSRect _frame;
    NSView* _superview; // not retained
    NSMutableArray* _subviews;
    NSWindow* _window; // not retained
    NSUInteger _autoresizingMask;
    BOOL _hidden;
}
- (id)initWithFrame:(NSRect)frame;

// Hierarchy. Only its superview retains a view.
- (NSArray*)subviews; // back to front
- (NSView*)superview;
- (NSWindow*)window;
- (void)addSubview:(NSView*)view; // in front; taken out of the superview that it has
- (void)removeFromSuperview;
- (BOOL)isDescendantOf:(NSView*)view; // YES for the view itself
- (id)viewWithTag:(NSInteger)tag;     // itself or the first such view below it, depth first
- (NSInteger)tag;                     // -1
- (void)viewWillMoveToWindow:(NSWindow*)window;

- (BOOL)isHidden;
- (void)setHidden:(BOOL)flag;
- (BOOL)isHiddenOrHasHiddenAncestor;

// Whether Tab visits it. Tab follows the order of the views: each after its superview, siblings as
// they were added.
- (BOOL)canBecomeKeyView;

// NO unless one of its subviews takes the key.
- (BOOL)performKeyEquivalent:(NSEvent*)event;
@end

@interface NSView (NSViewGeometry)
- (NSRect)frame;
- (void)setFrame:(NSRect)frame;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)setFrameSize:(NSSize)size;
- (NSRect)bounds;
- (BOOL)isFlipped;     // NO
- (NSRect)visibleRect; // the part of the bounds that no superview clips away
- (NSPoint)convertPoint:(NSPoint)point fromView:(NSView*)view; // nil: the window
- (NSPoint)convertPoint:(NSPoint)point toView:(NSView*)view;
- (NSRect)convertRect:(NSRect)rect fromView:(NSView*)view;
- (NSRect)convertRect:(NSRect)rect toView:(NSView*)view;

// Which of width and height grow and shrink with the superview's.
- (void)setAutoresizingMask:(NSUInteger)mask;

// The point is in the superview's coordinates.
- (NSView*)hitTest:(NSPoint)point;
@end

// Drawing. A view is drawn after its superview and clipped to its bounds.
@interface NSView (NSViewDrawing)
- (void)setNeedsDisplay:(BOOL)flag;
- (void)setNeedsDisplayInRect:(NSRect)rect;
- (void)display; // draws now
- (void)drawRect:(NSRect)dirty;
- (void)lockFocus;
- (void)unlockFocus;
@end
