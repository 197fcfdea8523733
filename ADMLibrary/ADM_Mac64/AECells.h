// Cells that paint Cocoa's controls in the host's colours. They have no state of their own: they
// show the control's title, state and enabled state at the time of drawing.

#pragma once

#include <Cocoa/Cocoa.h>

@interface AEButtonCell : NSButtonCell
- (id)init;
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
// Draws the pressed look, or the disabled one; ignores the flag.
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view;
@end

// The box alone: its text is a label beside it.
@interface AECheckBoxCell : NSButtonCell
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view;
@end

// The circle alone.
@interface AERadioCell : NSButtonCell
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
@end

@interface AEPopupButtonCell : NSPopUpButtonCell
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
@end
