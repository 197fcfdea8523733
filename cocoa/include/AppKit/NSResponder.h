// The chain of objects that an event or an action passes along until one of them takes it:
// view, superview, ..., content view, window, application.
#pragma once

#include <Foundation/Foundation.h>

@class NSEvent, NSMenu;

@interface NSResponder : NSObject {
  @private
    NSResponder* _nextResponder; // not retained
}
- (NSResponder*)nextResponder;
- (void)setNextResponder:(NSResponder*)responder;

// NO, YES and YES unless a subclass says otherwise.
- (BOOL)acceptsFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;

// Each passes the event on to the next responder; at the end of the chain it is dropped.
- (void)mouseDown:(NSEvent*)event;
- (void)mouseDragged:(NSEvent*)event;
- (void)mouseUp:(NSEvent*)event;
- (void)mouseMoved:(NSEvent*)event;
- (void)rightMouseDown:(NSEvent*)event;
- (void)rightMouseDragged:(NSEvent*)event;
- (void)rightMouseUp:(NSEvent*)event;
- (void)scrollWheel:(NSEvent*)event;
- (void)keyDown:(NSEvent*)event;
- (void)keyUp:(NSEvent*)event;

// NO unless a subclass takes the key.
- (BOOL)performKeyEquivalent:(NSEvent*)event;

// Performs the action if the receiver has such a method, else tries the next responder.
- (BOOL)tryToPerform:(SEL)action with:(id)object;
- (void)doCommandBySelector:(SEL)command;
@end
