// What the rest of AppKit needs of windows.
#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSWindow.h>

#include <vector>

@class NSColor;

// A window's picture: RGBA, premultiplied, top row first.
struct NSWindowState {
    std::vector<unsigned char> pixels;
    int width = 0;
    int height = 0;
    double scale = 0;
    NSRect dirty = {{0, 0}, {0, 0}}; // base coordinates
    // Controls that were enabled, disabled or coloured since the window was last drawn, and how
    // they looked then: a control that looks the same again is not redrawn.
    struct Look {
        NSControl* control; // not retained: removed when it leaves the window
        BOOL enabled;
        NSColor* color; // of its text, retained; nil if it has none
    };
    std::vector<Look> looks;
};

@interface NSWindow (Private)
- (struct NSWindowState*)state;
- (void)addDirtyRect:(NSRect)rect; // base coordinates
- (void)prepareState;              // pixels of the right size and scale
- (void)viewWillLeave:(NSView*)view;
- (void)controlWillLookDifferent:(NSControl*)control; // enabled, or its text's colour
- (void)setVisibleFlag:(BOOL)flag;
- (void)screenDidChange;
- (void)showTitleOnDisplay;
- (BOOL)isListed;      // NO for the windows of menus
- (BOOL)isTransparent; // its pixels are blended, not copied
- (NSView*)focusView;  // the view that gets the focus ring, and from which Tab goes on
- (void)selectKeyViewAfter:(NSView*)view forward:(BOOL)forward;
@end

// The menu bar or a menu's list: not one of the application's windows.
@interface NSMenuWindow : NSWindow
@end
