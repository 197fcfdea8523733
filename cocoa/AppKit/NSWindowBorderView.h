// The view around a window's content: background, title bar, resize grip. It moves and resizes the
// window with the mouse.
#pragma once

#include <AppKit/NSView.h>

@interface NSWindowBorderView : NSView
@end
