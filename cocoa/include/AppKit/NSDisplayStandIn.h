// The display, and what a program can do in place of the user: post events, take pictures, answer
// alerts. This header is an addition of this library; the platform has none of that name.
//
// Posted events wait in the queue until they are taken: by NSDispatchEvents, a loop of the
// application, or a control that tracks the mouse. Post the release together with the press: a
// control that tracks the mouse on a display without a user gives up when the queue is empty, as if
// the button had been released outside.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSEvent.h>
#include <Foundation/Foundation.h>

#include <string>
#include <vector>

@class NSButton, NSTextField, NSView, NSWindow;

// The display; at first it is headless, 1440 x 900 points at scale 1. Windows move to the new one.
void NSUseHeadlessDisplay(NSSize size, CGFloat scale);
// In one window of the desktop, which is the whole screen, and no smaller than `least`. Scale 0 is
// the desktop's own; size 0 is 1280 x 800, or what the desktop has room for. NO, with the reason on
// standard error and the display unchanged, when there is no desktop.
BOOL NSUseWindowDisplay(NSString* title, NSSize size, CGFloat scale, NSSize least = {320, 200});
// The look of what AppKit draws itself: dark at first, or light.
void NSUseLightAppearance(BOOL flag);

// Events. Locations are in the window's base coordinates (or, with a view, in the view's); clicks
// and keys are a press and a release. Keys go to the key window.
void NSPostMouse(NSWindow* window, NSEventType type, NSPoint location, NSInteger clicks,
                 NSUInteger modifiers);
void NSPostClick(NSView* view, NSPoint point, NSInteger clicks = 1, NSUInteger modifiers = 0);
void NSPostDrag(NSView* view, NSPoint from, NSPoint to); // press, three moves, release
// In lines; deltaX is ignored, nothing scrolls sideways.
void NSPostScroll(NSView* view, NSPoint point, CGFloat deltaX, CGFloat deltaY);
void NSPostKey(unichar character, NSUInteger modifiers = 0);
void NSPostText(NSString* text); // a key for each character
// As the display reports it: at a point of the screen, for whatever window is there, and from press
// to release for the window where the button went down. Moves, presses and releases of the left
// button; NO unless the display is headless.
BOOL NSPostScreenMouse(NSEventType type, NSPoint screen, NSInteger clicks = 1);
// Sends all waiting events, and those that they cause, to the application; returns their number.
NSUInteger NSDispatchEvents();

// Pictures: RGBA, 8 bits each, premultiplied, the top row first.
struct NSPicture {
    int width = 0; // pixels
    int height = 0;
    std::vector<unsigned char> rgba;
};
// A view and its subviews, drawn anew at `scale` pixels per point, whether shown or not; empty for
// a view without area, or of more than 2^28 pixels.
NSPicture NSRenderView(NSView* view, CGFloat scale);
// The screen with all windows on it, at the display's scale.
NSPicture NSRenderScreen();
// How often the screen was composed because something on it was drawn. It is presented on the
// display only when it differs from the time before.
NSUInteger NSFramesDrawn();

// Alerts, when there is no user: the next panel is answered with its N-th button (from 1; the first
// if there is no such), the others with their first.
void NSSetNextAlertAnswer(NSUInteger button);
struct NSShownAlert {
    std::string title; // UTF-8
    std::string message;
    std::vector<std::string> buttons;
};
std::vector<NSShownAlert> NSShownAlerts(); // oldest first
void NSForgetShownAlerts();
void NSLeaveNextAlertOut(); // the next one is not recorded

// Controls.
NSButtonType NSTypeOfButton(NSButton* button);
BOOL NSTextFieldIsLabel(NSTextField* field); // shown, not edited
