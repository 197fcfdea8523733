// A field: when its editing starts, what ends it and who is told.
#include <AppKit/NSTextField.h>

#include "Internal.h"

#include <AppKit/AppKit.h>

NSString* const NSControlTextDidBeginEditingNotification =
    @"NSControlTextDidBeginEditingNotification";
NSString* const NSControlTextDidChangeNotification = @"NSControlTextDidChangeNotification";
NSString* const NSControlTextDidEndEditingNotification = @"NSControlTextDidEndEditingNotification";

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
    if (!flag) [[self cell] setSelectable:NO];
}
- (BOOL)isSelectable {
    return [[self cell] isSelectable];
}
- (void)setSelectable:(BOOL)flag {
    if (!flag) [self abortEditing];
    [[self cell] setSelectable:flag];
}
- (BOOL)isBordered {
    return [[self cell] isBordered];
}
- (void)setBordered:(BOOL)flag {
    [[self cell] setBordered:flag];
}
- (BOOL)isBezeled {
    return [[self cell] isBezeled];
}
- (void)setBezeled:(BOOL)flag {
    [[self cell] setBezeled:flag];
}
- (BOOL)drawsBackground {
    return [[self textCell] drawsBackground];
}
- (void)setDrawsBackground:(BOOL)flag {
    [[self textCell] setDrawsBackground:flag];
}
- (NSColor*)backgroundColor {
    return [[self textCell] backgroundColor];
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
- (id<NSTextFieldDelegate>)delegate {
    return _delegate;
}
- (void)setDelegate:(id<NSTextFieldDelegate>)delegate {
    _delegate = delegate;
}

- (BOOL)acceptsFirstResponder {
    return [self isEnabled] && [self isSelectable] && ![[self cell] refusesFirstResponder];
}
- (BOOL)canBecomeKeyView {
    return [super canBecomeKeyView] && [self isEditable];
}

// Editing.

- (void)tell:(NSString*)name selector:(SEL)selector {
    NSNotification* notification = [NSNotification notificationWithName:name object:self];
    if ([_delegate respondsToSelector:selector])
        [_delegate performSelector:selector withObject:notification];
    [[NSNotificationCenter defaultCenter] postNotification:notification];
}

- (void)takeEditorBack {
    NSText* editor = _editor;
    _editor = nil;
    [editor setDelegate:nil];
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
    // Another field gives it back first.
    if ([editor superview]) [window endEditingFor:[editor superview]];
    if (![[self retain] autorelease] || [editor superview] || [self window] != window) return NO;
    _editor = editor;
    _edited = NO;
    [_original release];
    _original = [[[self cell] stringValue] copy];
    [editor setFont:[self font]];
    [editor setTextColor:[self textColor]];
    [editor setAlignment:[self alignment]];
    [editor setEditable:[self isEditable]];
    [editor setFrame:[[self textCell] titleRectForBounds:[self bounds]]];
    [editor setString:_original];
    [editor setDelegate:self];
    [self addSubview:editor];
    if (![window makeFirstResponder:editor]) {
        [self takeEditorBack];
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
    if (![self isEnabled] || ![self isSelectable]) {
        [[self nextResponder] mouseDown:event];
        return;
    }
    if ([self startEditing]) [_editor mouseDown:event];
}

// The space bar writes here.
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
    [self takeEditorBack];
    if (_edited) [[self cell] setStringValue:original];
    _edited = NO;
    return YES;
}

// A field that leaves its window keeps what was typed; nobody ended the editing, so nobody is told.
- (void)viewWillMoveToWindow:(NSWindow*)window {
    if (_editor) {
        [self validateEditing];
        [self takeEditorBack];
        _edited = NO;
    }
    [super viewWillMoveToWindow:window];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [_editor setFrame:[[self textCell] titleRectForBounds:[self bounds]]];
}

// From the field editor.

- (void)textDidChange:(NSNotification*)__attribute__((unused))notification {
    const BOOL first = !_edited;
    _edited = YES;
    if (first)
        [self tell:NSControlTextDidBeginEditingNotification
            selector:@selector(controlTextDidBeginEditing:)];
    [self tell:NSControlTextDidChangeNotification selector:@selector(controlTextDidChange:)];
}

- (void)textDidEndEditing:(NSNotification*)notification {
    if (!_editor) return;
    [[self retain] autorelease];
    const NSInteger movement = [[[notification userInfo] objectForKey:NSTextMovement] integerValue];
    [self validateEditing];
    const BOOL edited = _edited;
    _edited = NO;
    [self takeEditorBack];
    if (edited)
        [self tell:NSControlTextDidEndEditingNotification
            selector:@selector(controlTextDidEndEditing:)];
    if (movement == NSReturnTextMovement || (edited && [[self cell] sendsActionOnEndEditing]))
        [self sendAction:[self action] to:[self target]];
}

// Escape: what was typed is taken back, and the window's Cancel button is pressed where it has one.
- (void)textDidCancel {
    if (!_editor) return;
    [_editor setString:_original];
    [_editor selectAll:nil];
    if (_edited) [[self cell] setStringValue:_original];
    _edited = NO;
    NSEvent* event = [NSApp currentEvent];
    if ([event type] == NSKeyDown) [[self window] performKeyEquivalent:event];
}
@end
