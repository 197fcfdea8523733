// What the rest of AppKit needs of the application.
#pragma once

#include <AppKit/NSApplication.h>

@interface NSApplication (Private)
- (void)setKeyWindow:(NSWindow*)window;
// Before the window is freed.
- (void)windowWillBeFreed:(NSWindow*)window;
// Makes the frontmost window that can be it the key window.
- (void)chooseKeyWindow;
// For tracking the mouse with the left button down: waits for the next drag or its release. nil
// when no event can come.
- (NSEvent*)nextDragOrMouseUp;
@end
