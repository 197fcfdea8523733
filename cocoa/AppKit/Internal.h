// What the classes of AppKit know of each other beyond their public interface.
#pragma once

#include <AppKit/NSApplication.h>
#include <AppKit/NSButton.h>
#include <AppKit/NSMenu.h>
#include <AppKit/NSPopUpButton.h>
#include <AppKit/NSText.h>
#include <AppKit/NSTextField.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>
#include <CoreGraphics/CoreGraphics.h>

#include <vector>

// A window's picture: RGBA, premultiplied, top row first.
struct NSWindowState {
    std::vector<unsigned char> pixels;
    int width = 0;
    int height = 0;
    double scale = 0;
    NSRect dirty = {{0, 0}, {0, 0}}; // base coordinates
    // Controls that have been enabled, disabled or coloured since the window was last drawn, and
    // how they were then: those that are the same again need no drawing.
    struct Look {
        NSControl* control; // not retained: it is taken out when it leaves the window
        BOOL enabled;
        NSColor* color; // of its text, retained; nil for none
    };
    std::vector<Look> looks;
};

@interface NSResponder (Internal)
// May a click of the mouse give the view the focus, or does Tab alone?
- (BOOL)takesFocusOnClick;
@end

@interface NSView (Internal)
- (void)moveToWindow:(NSWindow*)window; // with all that is below
- (void)setSuperviewPointer:(NSView*)view;
- (NSMutableArray*)mutableSubviews;
// From the view's coordinates to those of the topmost superview's outside, or of the window.
- (NSPoint)basePoint:(NSPoint)point;
- (NSPoint)pointFromBase:(NSPoint)point;
- (NSRect)baseRect:(NSRect)rect;
- (NSRect)rectFromBase:(NSRect)rect;
- (NSRect)frameRectOfRect:(NSRect)rect; // own coordinates to the superview's
// Draws the view and what is below it where `dirty` (in its superview's coordinates) touches it.
- (void)drawTreeInContext:(CGContextRef)context flipped:(BOOL)superviewFlipped dirty:(NSRect)dirty;
- (void)clearNeedsDisplay;
// The rectangle that gets the focus ring while the view is first responder; empty for none.
- (NSRect)focusRingRect;
@end

@interface NSWindow (Internal)
- (struct NSWindowState*)state;
- (NSView*)borderView;
- (void)addDirtyRect:(NSRect)rect; // base coordinates
- (void)prepareState;              // pixels of the right size and scale
- (void)viewWillLeave:(NSView*)view;
- (void)controlWillLookDifferent:(NSControl*)control; // enabled, or its text's colour
- (void)forgetLooksOf:(NSView*)view;
- (void)setVisibleFlag:(BOOL)flag;
- (void)screenDidChange;
- (void)tellTitle;     // to the display
- (BOOL)isListed;      // NO for the windows of menus
- (BOOL)isTransparent; // its pixels are blended, not copied
- (NSView*)focusView;  // the view to ring
- (void)selectKeyViewAfter:(NSView*)view forward:(BOOL)forward;
- (void)sizeBorderToFrame;
@end

// A window that menus make for themselves: not one of the application's.
@interface NSMenuWindow : NSWindow
@end

@interface NSApplication (Internal)
- (void)setKeyWindow:(NSWindow*)window;
- (void)windowIsGone:(NSWindow*)window;
- (void)keyWindowNeeded; // after the key window left the screen
- (void)lastWindowMayHaveClosed;
@end

@interface NSControl (Internal)
- (void)redrawCell;
@end

@interface NSButtonCell (Internal)
- (NSButtonType)buttonType;
@end

@interface NSMenu (Internal)
- (void)setPopUpCell:(NSPopUpButtonCell*)cell;
- (void)setSupermenu:(NSMenu*)menu;
- (void)itemChanged:(NSMenuItem*)item;
@end

@interface NSMenuItem (Internal)
- (void)setMenu:(NSMenu*)menu;
@end

@interface NSPopUpButtonCell (Internal)
- (void)menuDidAddItem:(NSMenuItem*)item;
- (void)menuDidRemoveItem:(NSMenuItem*)item;
- (void)menuDidChangeItem:(NSMenuItem*)item;
- (void)menuIsGone;
- (NSRect)listRectForFrame:(NSRect)frame inView:(NSView*)view;
@end

@interface NSText (Internal)
- (void)endEditingWithMovement:(NSInteger)movement;
- (void)selectionChanged;
- (NSUInteger)after:(NSUInteger)position;
- (NSRange)wordAt:(NSUInteger)position;
- (void)moveTo:(NSUInteger)position extending:(BOOL)extending;
@end

@interface NSEvent (Internal)
+ (NSEvent*)scrollEventAt:(NSPoint)location
            modifierFlags:(NSUInteger)flags
             windowNumber:(NSInteger)window
                   deltaX:(CGFloat)dx
                   deltaY:(CGFloat)dy;
@end

namespace cocoa {

// Of the application-defined event that stands for the user's wish to quit: whoever has a loop of
// its own ends it and leaves the event to the application.
constexpr short quit_subtype = 0x7175;

// Draws a view tree into RGBA pixels of the given size (a multiple of the root's outside by
// `scale`); `dirty` is in the coordinates outside the root.
void draw_tree(NSView* root, unsigned char* pixels, int width, int height, double scale,
               NSRect dirty);
void draw_focus_ring(NSRect rect);

} // namespace cocoa
