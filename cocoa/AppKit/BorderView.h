// The view around a window's content: background, title bar with the close button, outline, grip.
// It moves and resizes the window with the mouse.
#pragma once

#include <AppKit/NSView.h>

@interface NSWindowBorderView : NSView {
  @private
    BOOL _closePressed;
}
- (NSRect)closeButtonRect; // empty when the window has none
@end
