#include <AppKit/NSResponder.h>

#include "Internal.h"

@implementation NSResponder
- (NSResponder*)nextResponder {
    return _nextResponder;
}
- (void)setNextResponder:(NSResponder*)responder {
    _nextResponder = responder;
}
- (BOOL)acceptsFirstResponder {
    return NO;
}
- (BOOL)becomeFirstResponder {
    return YES;
}
- (BOOL)resignFirstResponder {
    return YES;
}
- (void)mouseDown:(NSEvent*)event {
    [[self nextResponder] mouseDown:event];
}
- (void)mouseDragged:(NSEvent*)event {
    [[self nextResponder] mouseDragged:event];
}
- (void)mouseUp:(NSEvent*)event {
    [[self nextResponder] mouseUp:event];
}
- (void)mouseMoved:(NSEvent*)event {
    [[self nextResponder] mouseMoved:event];
}
- (void)rightMouseDown:(NSEvent*)event {
    [[self nextResponder] rightMouseDown:event];
}
- (void)rightMouseDragged:(NSEvent*)event {
    [[self nextResponder] rightMouseDragged:event];
}
- (void)rightMouseUp:(NSEvent*)event {
    [[self nextResponder] rightMouseUp:event];
}
- (void)scrollWheel:(NSEvent*)event {
    [[self nextResponder] scrollWheel:event];
}
- (void)keyDown:(NSEvent*)event {
    [[self nextResponder] keyDown:event];
}
- (void)keyUp:(NSEvent*)event {
    [[self nextResponder] keyUp:event];
}
- (BOOL)performKeyEquivalent:(NSEvent*)__attribute__((unused))event {
    return NO;
}
- (BOOL)tryToPerform:(SEL)action with:(id)object {
    if ([self respondsToSelector:action]) {
        [self performSelector:action withObject:object];
        return YES;
    }
    return [[self nextResponder] tryToPerform:action with:object];
}
- (void)doCommandBySelector:(SEL)command {
    [self tryToPerform:command with:nil];
}
- (BOOL)takesFocusOnClick {
    return YES;
}
@end
