#include "NSViewPrivate.h"

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
- (void)rightMouseDown:(NSEvent*)event {
    [[self nextResponder] rightMouseDown:event];
}
- (void)scrollWheel:(NSEvent*)event {
    [[self nextResponder] scrollWheel:event];
}
- (void)keyDown:(NSEvent*)event {
    [[self nextResponder] keyDown:event];
}
- (BOOL)takesFocusOnClick {
    return YES;
}
@end
