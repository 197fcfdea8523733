// The chain of objects along which an event passes until one of them takes it: view, superview,
// ..., content view, window.
#pragma once

#include <Foundation/Foundation.h>

@class NSEvent;

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
- (void)rightMouseDown:(NSEvent*)event;
- (void)scrollWheel:(NSEvent*)event;
- (void)keyDown:(NSEvent*)event;
@end
