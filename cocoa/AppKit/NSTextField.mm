// A text field: when its editing starts and ends.
#include "NSTextPrivate.h"

#include "NSViewPrivate.h"

#include <AppKit/AppKit.h>

@implementation NSTextField
+ (Class)cellClass {
    return [NSTextFieldCell class];
}

- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    [self setEditable:YES];
    [self setBezeled:YES];
    [self setDrawsBackground:YES];
    return self;
}

- (void)dealloc {
    [_original release];
    [super dealloc];
}

- (NSTextFieldCell*)textCell {
    return (NSTextFieldCell*)[self cell];
}
- (BOOL)isEditable {
    return [[self cell] isEditable];
}
- (void)setEditable:(BOOL)flag {
    if (!flag) [self abortEditing];
    [[self cell] setEditable:flag];
}
- (void)setBordered:(BOOL)flag {
    [[self cell] setBordered:flag];
}
- (void)setBezeled:(BOOL)flag {
    [[self cell] setBezeled:flag];
}
- (void)setDrawsBackground:(BOOL)flag {
    [[self textCell] setDrawsBackground:flag];
}
- (void)setBackgroundColor:(NSColor*)color {
    [[self textCell] setBackgroundColor:color];
}
- (NSColor*)textColor {
    return [[self textCell] textColor];
}
- (void)setTextColor:(NSColor*)color {
    [[self textCell] setTextColor:color];
}

- (BOOL)acceptsFirstResponder {
    return [self isEnabled] && [self isEditable];
}

// Editing.

- (void)removeEditor {
    NSText* editor = _editor;
    _editor = nil;
    [editor setField:nil];
    [editor removeFromSuperview];
    [_original release];
    _original = nil;
    [self setNeedsDisplay:YES];
}

- (BOOL)startEditing {
    if (_editor) return YES;
    NSWindow* window = [self window];
    if (!window || ![self acceptsFirstResponder]) return NO;
    NSText* editor = [window fieldEditor:YES forObject:self];
    [[self retain] autorelease];
    // Another field that has it ends its editing first.
    if ([editor superview]) [window endEditingFor:[editor superview]];
    if ([editor superview] || [self window] != window) return NO;
    _editor = editor;
    _edited = NO;
    [_original release];
    _original = [[[self cell] stringValue] copy];
    [editor setFont:[self font]];
    [editor setTextColor:[self textColor]];
    [editor setFrame:[[self textCell] titleRectForBounds:[self bounds]]];
    [editor setString:_original];
    [editor setField:self];
    [self addSubview:editor];
    if (![window makeFirstResponder:editor]) {
        [self removeEditor];
        return NO;
    }
    [self setNeedsDisplay:YES];
    return _editor != nil;
}

- (void)selectText:(id)sender {
    if ([self startEditing]) [_editor selectAll:sender];
}

- (BOOL)becomeFirstResponder {
    [self selectText:nil];
    return _editor != nil;
}

- (void)mouseDown:(NSEvent*)event {
    if (![self acceptsFirstResponder]) {
        [[self nextResponder] mouseDown:event];
        return;
    }
    if ([self startEditing]) [_editor mouseDown:event];
}

// Space is typed here and does not click.
- (void)keyDown:(NSEvent*)event {
    [[self nextResponder] keyDown:event];
}

- (NSText*)currentEditor {
    return _editor;
}

- (void)validateEditing {
    if (!_editor || !_edited) return;
    NSString* text = [_editor string];
    if (![text isEqualToString:[[self cell] stringValue]]) [[self cell] setStringValue:text];
}

- (BOOL)abortEditing {
    if (!_editor) return NO;
    NSString* original = [[_original retain] autorelease];
    [self removeEditor];
    if (_edited) [[self cell] setStringValue:original];
    _edited = NO;
    return YES;
}

// A field that leaves its window keeps what was typed, and sends no action.
- (void)viewWillMoveToWindow:(NSWindow*)window {
    if (_editor) {
        [self validateEditing];
        [self removeEditor];
        _edited = NO;
    }
    [super viewWillMoveToWindow:window];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [_editor setFrame:[[self textCell] titleRectForBounds:[self bounds]]];
}

// From the field editor.

- (void)editorDidChange {
    _edited = YES;
}

- (void)editorDidEnd:(EditingEnd)end {
    if (!_editor) return;
    [[self retain] autorelease];
    [self validateEditing];
    const BOOL edited = _edited;
    _edited = NO;
    [self removeEditor];
    if (end == EditingEnd::Return || (edited && [[self cell] sendsActionOnEndEditing]))
        [self sendAction:[self action] to:[self target]];
}

// Escape restores the text and is the key equivalent of the window's Cancel button, if there is
// one.
- (void)editorDidCancel {
    if (!_editor) return;
    [_editor setString:_original];
    [_editor selectAll:nil];
    if (_edited) [[self cell] setStringValue:_original];
    _edited = NO;
    NSEvent* event = [NSApp currentEvent];
    if ([event type] == NSKeyDown) [[self window] performKeyEquivalent:event];
}
@end
