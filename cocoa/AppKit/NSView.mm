// The tree of views, their window, and the order of Tab.
#include "NSViewPrivate.h"

#include "NSWindowPrivate.h"

@implementation NSView
- (id)init {
    return [self initWithFrame:NSZeroRect];
}

- (id)initWithFrame:(NSRect)frame {
    self = [super init];
    if (!self) return nil;
    _frame = frame;
    _subviews = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    for (NSUInteger i = 0; i < [_subviews count]; ++i) {
        NSView* view = [_subviews objectAtIndex:i];
        [view setSuperviewPointer:nil];
        [view moveToWindow:nil];
    }
    [_subviews release];
    [super dealloc];
}

- (NSArray*)subviews {
    return [NSArray arrayWithArray:_subviews];
}
- (NSView*)superview {
    return _superview;
}
- (NSWindow*)window {
    return _window;
}

- (void)addSubview:(NSView*)view {
    if (!view) return;
    if ([self isDescendantOf:view])
        [NSException raise:NSInvalidArgumentException
                    format:@"a view cannot be added to itself or to a view below it"];
    [view retain];
    // Within one superview a view only changes its place: it never leaves the window.
    if (view->_superview == self) {
        [_subviews removeObjectIdenticalTo:view];
        [_subviews addObject:view];
    } else {
        [view removeFromSuperview];
        [_subviews addObject:view];
        [view setSuperviewPointer:self];
        [view moveToWindow:_window];
    }
    [view setNeedsDisplay:YES];
    [view release];
}

- (void)removeFromSuperview {
    NSView* superview = _superview;
    if (!superview) return;
    [superview setNeedsDisplayInRect:_frame];
    [self retain];
    [self moveToWindow:nil];
    // Leaving the window ended the focus, and that may have run code that moved the view.
    if (_superview == superview) {
        [self setSuperviewPointer:nil];
        [superview->_subviews removeObjectIdenticalTo:self];
    }
    [self release];
}

- (void)setSuperviewPointer:(NSView*)view {
    _superview = view;
    [self setNextResponder:view];
}

- (void)moveToWindow:(NSWindow*)window {
    if (_window == window) return;
    [self viewWillMoveToWindow:window];
    if (_window) [_window viewWillLeave:self];
    _window = window;
    NSArray* subviews = [[NSArray alloc] initWithArray:_subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i) {
        NSView* view = [subviews objectAtIndex:i];
        if (view->_superview == self) [view moveToWindow:window];
    }
    [subviews release];
}

- (BOOL)isDescendantOf:(NSView*)view {
    for (NSView* v = self; v; v = v->_superview)
        if (v == view) return YES;
    return NO;
}

- (id)viewWithTag:(NSInteger)tag {
    if ([self tag] == tag) return self;
    for (NSUInteger i = 0; i < [_subviews count]; ++i) {
        id found = [[_subviews objectAtIndex:i] viewWithTag:tag];
        if (found) return found;
    }
    return nil;
}

- (NSInteger)tag {
    return -1;
}
// For subclasses.
- (void)viewWillMoveToWindow:(NSWindow*)__attribute__((unused))window {
}

- (BOOL)isHidden {
    return _hidden;
}

- (void)setHidden:(BOOL)flag {
    if (_hidden == !!flag) return;
    _hidden = !!flag;
    if (_hidden) {
        NSResponder* focus = [_window firstResponder];
        if ([focus isKindOfClass:[NSView class]] && [(NSView*)focus isDescendantOf:self])
            [_window makeFirstResponder:nil];
    }
    [_superview setNeedsDisplayInRect:_frame];
}

- (BOOL)isHiddenOrHasHiddenAncestor {
    for (NSView* view = self; view; view = view->_superview)
        if (view->_hidden) return YES;
    return NO;
}

- (BOOL)canBecomeKeyView {
    return _window && [self acceptsFirstResponder] && ![self isHiddenOrHasHiddenAncestor];
}

// The view after this one, or before it, in the depth-first order of its tree, which is circular.
- (NSView*)neighbourInTree:(BOOL)forward {
    if (forward) {
        if ([_subviews count]) return [_subviews objectAtIndex:0];
        NSView* view = self;
        while (view->_superview) {
            NSArray* siblings = view->_superview->_subviews;
            const NSUInteger index = [siblings indexOfObjectIdenticalTo:view] + 1;
            if (index < [siblings count]) return [siblings objectAtIndex:index];
            view = view->_superview;
        }
        return view;
    }
    NSView* view = nil;
    if (_superview) {
        const NSUInteger index = [_superview->_subviews indexOfObjectIdenticalTo:self];
        if (index == 0) return _superview;
        view = [_superview->_subviews objectAtIndex:index - 1];
    } else {
        view = self;
    }
    while ([view->_subviews count]) view = [view->_subviews lastObject];
    return view;
}

- (NSView*)validKeyView:(BOOL)forward {
    NSView* view = [self neighbourInTree:forward];
    while (view != self && ![view canBecomeKeyView]) view = [view neighbourInTree:forward];
    return view == self ? nil : view;
}
- (NSView*)nextValidKeyView {
    return [self validKeyView:YES];
}
- (NSView*)previousValidKeyView {
    return [self validKeyView:NO];
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    NSArray* subviews = [self subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i) {
        NSView* view = [subviews objectAtIndex:i];
        if (![view isHidden] && [view performKeyEquivalent:event]) return YES;
    }
    return NO;
}
@end
