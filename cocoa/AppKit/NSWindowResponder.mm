// Who in a window has the focus, and where its events go.
#include "NSViewPrivate.h"
#include "NSWindowPrivate.h"

#include <AppKit/NSApplication.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSMenu.h>
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
    // Resigning may run code (a text's action) that moves the focus: the new one resigns too.
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
    std::erase_if(_state->looks, [view](const NSWindowState::Look& look) {
        if (look.control != (NSControl*)view) return false;
        [look.color release];
        return true;
    });
    if (_initialFirstResponder == view) _initialFirstResponder = nil;
    if (_contentView == view) _contentView = nil;
    if (_firstResponder == view) {
        _firstResponder = self;
        [view resignFirstResponder];
    }
}

- (void)setInitialFirstResponder:(NSView*)view {
    _initialFirstResponder = view;
}

- (void)selectKeyViewAfter:(NSView*)view forward:(BOOL)forward {
    NSView* next = forward ? [view nextValidKeyView] : [view previousValidKeyView];
    if (!next && [view canBecomeKeyView]) next = view;
    if (next) [self makeFirstResponder:next];
}

// A text being edited counts as its field.
- (NSView*)focusView {
    if (_firstResponder == self || ![_firstResponder isKindOfClass:[NSView class]]) return nil;
    if (_fieldEditor && _firstResponder == _fieldEditor) return [_fieldEditor superview];
    return (NSView*)_firstResponder;
}

- (void)selectNextKeyView {
    NSView* view = [self focusView];
    if (!view && [_initialFirstResponder canBecomeKeyView])
        [self makeFirstResponder:_initialFirstResponder];
    else
        [self selectKeyViewAfter:view ? view : _borderView forward:YES];
}
- (void)selectPreviousKeyView {
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

- (void)sendMouseDown:(NSEvent*)event {
    if (_level < NSPopUpMenuWindowLevel) {
        if (![self isKeyWindow]) [self makeKeyWindow];
        [self orderFront:self];
    }
    NSView* view = [[[_borderView hitTest:[event locationInWindow]] retain] autorelease];
    if (view != _firstResponder && [view takesFocusOnClick] && [view acceptsFirstResponder])
        [self makeFirstResponder:view];
    // Moving the focus may have taken it out of the window.
    if ([view window] == self) [view mouseDown:event];
}

- (void)sendEvent:(NSEvent*)event {
    [[self retain] autorelease];
    switch ([event type]) {
    case NSLeftMouseDown:
        [self sendMouseDown:event];
        break;
    case NSRightMouseDown:
        [[_borderView hitTest:[event locationInWindow]] rightMouseDown:event];
        break;
    case NSScrollWheel:
        [[_borderView hitTest:[event locationInWindow]] scrollWheel:event];
        break;
    case NSKeyDown:
        [_firstResponder keyDown:event];
        break;
    }
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    return [_borderView performKeyEquivalent:event];
}

// Keys that no view took: Tab moves the focus, all others may be the key equivalent of a button.
- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar character = [characters length] ? [characters characterAtIndex:0] : 0;
    if (character == NSTabCharacter && !([event modifierFlags] & NSShiftKeyMask))
        [self selectNextKeyView];
    else if (character == NSTabCharacter || character == NSBackTabCharacter)
        [self selectPreviousKeyView];
    else
        [self performKeyEquivalent:event];
}
@end
