#include <AppKit/NSControl.h>

#include "NSApplicationPrivate.h"
#include "NSViewPrivate.h"

#include <AppKit/AppKit.h>

@implementation NSControl
+ (Class)cellClass {
    return [NSActionCell class];
}

- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _cell = [[[[self class] cellClass] alloc] init];
    [_cell setControlView:self];
    return self;
}

- (void)dealloc {
    if ([_cell controlView] == self) [_cell setControlView:nil];
    [_cell release];
    [super dealloc];
}

- (id)cell {
    return _cell;
}
- (void)setCell:(NSCell*)cell {
    if (cell == _cell) return;
    [self abortEditing];
    if ([_cell controlView] == self) [_cell setControlView:nil];
    // The replaced cell may be in use further down the stack.
    [_cell autorelease];
    _cell = [cell retain];
    [_cell setControlView:self];
    [self setNeedsDisplay:YES];
}

- (BOOL)isFlipped {
    return YES;
}
- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    [_cell drawWithFrame:[self bounds] inView:self];
}

- (id)target {
    return [_cell target];
}
- (void)setTarget:(id)target {
    [(NSActionCell*)_cell setTarget:target];
}
- (SEL)action {
    return [_cell action];
}
- (void)setAction:(SEL)action {
    [(NSActionCell*)_cell setAction:action];
}
- (NSInteger)tag {
    return _tag;
}
- (void)setTag:(NSInteger)tag {
    _tag = tag;
}
- (BOOL)sendAction:(SEL)action to:(id)target {
    return action ? [NSApp sendAction:action to:target from:self] : NO;
}

- (BOOL)isEnabled {
    return [_cell isEnabled];
}
- (void)setEnabled:(BOOL)flag {
    if ([_cell isEnabled] == !!flag) return;
    if (!flag) {
        [self abortEditing];
        if ([[self window] firstResponder] == self) [[self window] makeFirstResponder:nil];
    }
    [_cell setEnabled:flag];
}
- (NSFont*)font {
    return [(NSCell*)_cell font];
}
- (void)setFont:(NSFont*)font {
    [(NSCell*)_cell setFont:font];
}

- (NSString*)stringValue {
    [self validateEditing];
    return [_cell stringValue];
}
- (void)setStringValue:(NSString*)text {
    const BOOL editing = [self abortEditing];
    [_cell setStringValue:text];
    // The user goes on typing, in the new text.
    if (editing) [[self window] makeFirstResponder:self];
}
- (void)setFloatValue:(float)value {
    const BOOL editing = [self abortEditing];
    [_cell setFloatValue:value];
    if (editing) [[self window] makeFirstResponder:self];
}

// Editing: for controls with a text.

- (NSText*)currentEditor {
    return nil;
}
- (BOOL)abortEditing {
    return NO;
}
- (void)validateEditing {
}

// Tab reaches every enabled control; a click does not give it the focus.
- (BOOL)acceptsFirstResponder {
    return [_cell acceptsFirstResponder];
}
- (BOOL)takesFocusOnClick {
    return NO;
}
- (BOOL)becomeFirstResponder {
    [self setNeedsDisplay:YES];
    return YES;
}
- (BOOL)resignFirstResponder {
    [self setNeedsDisplay:YES];
    return YES;
}

- (void)highlight:(BOOL)flag {
    if ([self window] && ![self isHiddenOrHasHiddenAncestor]) {
        [self lockFocus];
        [_cell highlight:flag withFrame:[self bounds] inView:self];
        [self unlockFocus];
    } else {
        [_cell setHighlighted:flag];
    }
    // A cell may draw its pressed look whatever the flag says: when the mouse is gone, the control
    // is redrawn.
    if (!flag) [self setNeedsDisplay:YES];
}

// The cell is highlighted and tracks while the mouse is inside; the action is sent before the
// highlight ends. When the mouse leaves, the cell is not highlighted until it comes back.
- (void)mouseDown:(NSEvent*)event {
    if (![self isEnabled]) return;
    [[self retain] autorelease];
    id cell = [[_cell retain] autorelease];
    const BOOL untilUp = [[cell class] prefersTrackingUntilMouseUp];
    while (event) {
        const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
        if (NSMouseInRect(point, [self bounds], [self isFlipped])) {
            [self highlight:YES];
            const BOOL done = [cell trackMouse:event
                                        inRect:[self bounds]
                                        ofView:self
                                  untilMouseUp:untilUp];
            [self highlight:NO];
            if (done || [[NSApp currentEvent] type] == NSLeftMouseUp) return;
        }
        event = [NSApp nextDragOrMouseUp];
        if ([event type] == NSLeftMouseUp) return;
    }
}

- (void)performClick:(id)__attribute__((unused))sender {
    if (![self isEnabled]) return;
    [[self retain] autorelease];
    id cell = [[_cell retain] autorelease];
    [self highlight:YES];
    [cell setNextState];
    [self sendAction:[cell action] to:[cell target]];
    [self highlight:NO];
}

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    if ([self isEnabled] && [characters length] == 1 && [characters characterAtIndex:0] == ' ' &&
        !([event modifierFlags] & (NSCommandKeyMask | NSControlKeyMask)))
        [self performClick:self];
    else
        [super keyDown:event];
}
@end
