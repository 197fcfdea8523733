// Where windows are shown, and what a program may do in the user's place: choose a display, post
// events, take pictures, answer alerts, look at what a control is. This header is an addition of
// this library; the platform has none of that name.
//
// Posted events wait in the queue until somebody takes them: NSDispatchEvents, a loop of the
// application, or a control that tracks the mouse. Post the release together with the press: a
// control that tracks the mouse on a display without a user, and finds the queue empty, gives up as
// if the button had been released outside.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSEvent.h>
#include <Foundation/Foundation.h>

#include <string>
#include <vector>

@class NSButton, NSPopUpButton, NSTextField, NSView, NSWindow;

// The display. At first it is headless, 1440 x 900 points at scale 1. Choosing a display keeps the
// windows and the clipboard's text is the new one's.
void NSUseHeadlessDisplay(NSSize size, CGFloat scale);
// In one window of the desktop, which is the whole screen; scale 0: the desktop's own; size 0:
// 1280 x 800, or what the desktop has room for. NO, with the reason on standard error and the
// display as it was, when there is no desktop.
// The user can make the window no smaller than `least`.
BOOL NSUseWindowDisplay(NSString* title, NSSize size, CGFloat scale, NSSize least = {320, 200});
// What AppKit draws by itself: dark at first, or light.
void NSUseLightAppearance(BOOL flag);

// Events. Locations are in the window's base coordinates (or, with a view, in the view's); clicks
// and keys are a press and a release. Keys go to the key window.
void NSPostMouse(NSWindow* window, NSEventType type, NSPoint location, NSInteger clicks,
                 NSUInteger modifiers);
void NSPostClick(NSView* view, NSPoint point, NSInteger clicks = 1, NSUInteger modifiers = 0);
void NSPostDrag(NSView* view, NSPoint from, NSPoint to); // press, three moves, release
void NSPostScroll(NSView* view, NSPoint point, CGFloat deltaX, CGFloat deltaY);
void NSPostKey(unichar character, NSUInteger modifiers = 0);
void NSPostText(NSString* text); // a key for each character
// The same as the display reports it: at a point of the screen, for whatever window is there, and
// from press to release for the window where the button went down. Moves, presses and releases of
// the left button alone; NO unless the display is headless.
BOOL NSPostScreenMouse(NSEventType type, NSPoint screen, NSInteger clicks = 1);
BOOL NSPostScreenScroll(NSPoint screen, CGFloat deltaX, CGFloat deltaY);
// Hands all that waits to the application, and what comes of it; how many events that were.
NSUInteger NSDispatchEvents();

// Pictures: RGBA, 8 bits, premultiplied, rows from the top.
struct NSPicture {
    int width = 0; // pixels
    int height = 0;
    std::vector<unsigned char> rgba;
};
// A view and what is below it, drawn anew at `scale` pixels per point, whether shown or not; empty
// for a view without area, or of more than 2^28 pixels.
NSPicture NSRenderView(NSView* view, CGFloat scale);
// A window with its title bar.
NSPicture NSRenderWindow(NSWindow* window, CGFloat scale);
// The screen with all windows on it, at the display's scale.
NSPicture NSRenderScreen();
// How often the screen was put together because something on it was drawn. It is brought to the
// display only when it looks different from the time before.
NSUInteger NSFramesDrawn();
// What was drawn in the window so far, at the display's scale: drawing outside the display cycle,
// such as a pressed button's, is there and nowhere else.
NSPicture NSWindowPixels(NSWindow* window);

// Alerts, when there is no user: the next panel is answered with its N-th button (from 1; the first
// if it has no such), the others with their first.
void NSSetNextAlertAnswer(NSUInteger button);
// Runs panels for the posted events even so; one whose events run out answers NSAlertErrorReturn.
void NSSetAlertsInteractive(BOOL flag);
struct NSShownAlert {
    std::string title; // UTF-8
    std::string message;
    std::vector<std::string> buttons;
};
std::vector<NSShownAlert> NSShownAlerts(); // oldest first
void NSForgetShownAlerts();
void NSLeaveNextAlertOut(); // the next one is not remembered

// Controls.
NSButtonType NSTypeOfButton(NSButton* button);
BOOL NSTextFieldIsLabel(NSTextField* field); // shown, not typed in
// Where an item of the list is (in the button's coordinates) while the list is open.
NSRect NSRectOfPopUpItem(NSPopUpButton* button, NSInteger index);
