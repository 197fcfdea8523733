// Who in a window has the focus, and where its events go.
#include "Internal.h"

#include <AppKit/NSText.h>

@implementation NSWindow (NSWindowResponder)
- (NSResponder*)firstResponder {
    return _firstResponder;
}

- (BOOL)makeFirstResponder:(NSResponder*)responder {
    if (!responder) responder = self;
    NSResponder* old = _firstResponder;
    if (responder == old) return YES;
    [old retain];
    [responder retain];
    BOOL done = old == self || [old resignFirstResponder];
    // What resigning set off (a text's action) may have moved the focus itself: that one goes too.
    for (int tries = 0; done && _firstResponder != old && _firstResponder != self && tries < 8;
         ++tries) {
        if (_firstResponder == responder) break;
        [old release];
        old = [_firstResponder retain];
        done = [old resignFirstResponder];
    }
    if (done && _firstResponder != responder) {
        _firstResponder = self;
        NSView* view = [responder isKindOfClass:[NSView class]] ? (NSView*)responder : nil;
        if (responder != self && (!view || [view window] == self)) {
            done = [responder acceptsFirstResponder];
            if (done) {
                _firstResponder = responder;
                done = [responder becomeFirstResponder];
                if (!done && _firstResponder == responder) _firstResponder = self;
            }
        } else if (responder != self) {
            done = NO;
        }
    }
    [self addDirtyRect:[_borderView frame]];
    [responder release];
    [old release];
    return done;
}

- (void)viewWillLeave:(NSView*)view {
    [self forgetLooksOf:view];
    if (_mouseView == view) _mouseView = nil;
    if (_initialFirstResponder == view) _initialFirstResponder = nil;
    if (_contentView == view) _contentView = nil;
    if (_firstResponder == view) {
        _firstResponder = self;
        [view resignFirstResponder];
    }
}

- (NSView*)initialFirstResponder {
    return _initialFirstResponder;
}
- (void)setInitialFirstResponder:(NSView*)view {
    _initialFirstResponder = view;
}

- (void)selectKeyViewAfter:(NSView*)view forward:(BOOL)forward {
    NSView* next = forward ? [view nextValidKeyView] : [view previousValidKeyView];
    if (!next && [view canBecomeKeyView]) next = view;
    if (next) [self makeFirstResponder:next];
}

// The view from which Tab goes on: a text being edited counts as its field.
- (NSView*)focusView {
    if (_firstResponder == self || ![_firstResponder isKindOfClass:[NSView class]]) return nil;
    if (_fieldEditor && _firstResponder == _fieldEditor) return [_fieldEditor superview];
    return (NSView*)_firstResponder;
}

- (void)selectNextKeyView:(id)__attribute__((unused))sender {
    NSView* view = [self focusView];
    if (!view && [_initialFirstResponder canBecomeKeyView])
        [self makeFirstResponder:_initialFirstResponder];
    else
        [self selectKeyViewAfter:view ? view : _borderView forward:YES];
}
- (void)selectPreviousKeyView:(id)__attribute__((unused))sender {
    NSView* view = [self focusView];
    [self selectKeyViewAfter:view ? view : _borderView forward:NO];
}

- (NSText*)fieldEditor:(BOOL)create forObject:(id)__attribute__((unused))object {
    if (!_fieldEditor && create) _fieldEditor = [[NSText alloc] initWithFrame:NSZeroRect];
    return _fieldEditor;
}
- (void)endEditingFor:(id)__attribute__((unused))object {
    if (_fieldEditor && _firstResponder == _fieldEditor) [self makeFirstResponder:nil];
}

- (BOOL)acceptsMouseMovedEvents {
    return _acceptsMouseMoved;
}
- (void)setAcceptsMouseMovedEvents:(BOOL)flag {
    _acceptsMouseMoved = !!flag;
}

// The view under the mouse when a button goes down gets all until it comes up. The view in the
// window's border is asked first, so that the title bar works.
- (void)sendMouseDown:(NSEvent*)event {
    if (_level < NSPopUpMenuWindowLevel) {
        if (![self isKeyWindow]) [self makeKeyWindow];
        [self orderFront:self];
    }
    NSView* view = [_borderView hitTest:[event locationInWindow]];
    _mouseView = view;
    if (view != _firstResponder && [view takesFocusOnClick] && [view acceptsFirstResponder])
        [self makeFirstResponder:view];
    if (_mouseView == view) [view mouseDown:event];
}

- (void)sendEvent:(NSEvent*)event {
    [[self retain] autorelease];
    [[_mouseView retain] autorelease];
    NSView* under = nil;
    switch ([event type]) {
    case NSLeftMouseDown:
        [self sendMouseDown:event];
        break;
    case NSLeftMouseDragged:
        [_mouseView mouseDragged:event];
        break;
    case NSLeftMouseUp: {
        NSView* view = _mouseView;
        _mouseView = nil;
        [view mouseUp:event];
        break;
    }
    case NSRightMouseDown:
        [[_borderView hitTest:[event locationInWindow]] rightMouseDown:event];
        break;
    case NSRightMouseDragged:
        [[_borderView hitTest:[event locationInWindow]] rightMouseDragged:event];
        break;
    case NSRightMouseUp:
        [[_borderView hitTest:[event locationInWindow]] rightMouseUp:event];
        break;
    case NSMouseMoved:
        [_firstResponder mouseMoved:event];
        break;
    case NSScrollWheel:
        under = [_borderView hitTest:[event locationInWindow]];
        [under scrollWheel:event];
        break;
    case NSKeyDown:
        [_firstResponder keyDown:event];
        break;
    case NSKeyUp:
        [_firstResponder keyUp:event];
        break;
    }
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    return [_borderView performKeyEquivalent:event];
}

// What no view took: Tab moves the focus, everything else may be the key equivalent of a button or
// of a menu item that asks for no modifier.
- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar character = [characters length] ? [characters characterAtIndex:0] : 0;
    if (character == NSTabCharacter && !([event modifierFlags] & NSShiftKeyMask))
        [self selectNextKeyView:self];
    else if (character == NSTabCharacter || character == NSBackTabCharacter)
        [self selectPreviousKeyView:self];
    else if (![self performKeyEquivalent:event] &&
             ([NSApp modalWindow] || ![[NSApp mainMenu] performKeyEquivalent:event]))
        [super keyDown:event];
}

// The end of the chain of views.
- (BOOL)tryToPerform:(SEL)action with:(id)object {
    if ([super tryToPerform:action with:object]) return YES;
    if (![(id)_delegate respondsToSelector:action]) return NO;
    [(id)_delegate performSelector:action withObject:object];
    return YES;
}
@end
