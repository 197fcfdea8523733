#include <AppKit/NSCell.h>

#include "NSWindowPrivate.h"
#include "Setters.h"

#include <AppKit/NSFont.h>
#include <charconv>
#include <cmath>
#include <string>

@implementation NSCell
- (id)init {
    return [self initTextCell:@""];
}

- (id)initTextCell:(NSString*)text {
    self = [super init];
    if (!self) return nil;
    cocoa::set_copied(_contents, text);
    _enabled = YES;
    return self;
}

- (void)dealloc {
    [_contents release];
    [_font release];
    [super dealloc];
}

- (NSView*)controlView {
    return _controlView;
}
- (void)setControlView:(NSView*)view {
    _controlView = view;
}

- (void)changed {
    [_controlView setNeedsDisplay:YES];
}

- (NSString*)stringValue {
    return _contents;
}
- (void)setStringValue:(NSString*)text {
    cocoa::set_copied(_contents, text);
    [self changed];
}

- (void)setFloatValue:(float)value {
    const float size = std::fabs(value);
    const bool plain = size == 0 || (size >= 1e-5f && size < 1e16f);
    char text[64];
    // Finds the fewest digits.
    const auto end = plain
                         ? std::to_chars(text, text + sizeof text, value, std::chars_format::fixed)
                         : std::to_chars(text, text + sizeof text, value);
    [self setStringValue:[NSString stringWithUTF8String:std::string(text, end.ptr).c_str()]];
}
- (NSString*)title {
    return [self stringValue];
}
- (void)setTitle:(NSString*)title {
    [self setStringValue:title];
}

- (NSInteger)state {
    return _state;
}
- (void)setState:(NSInteger)state {
    state = state == NSOffState ? NSOffState : NSOnState;
    if (state == _state) return;
    _state = state;
    [self changed];
}
- (NSInteger)nextState {
    return _state;
}
- (void)setNextState {
    [self setState:[self nextState]];
}

- (BOOL)isEnabled {
    return _enabled;
}
- (void)setEnabled:(BOOL)flag {
    if (_enabled == !!flag) return;
    NSView* view = [self controlView];
    const BOOL is_controls = [view window] && [view isKindOfClass:[NSControl class]];
    if (is_controls) [[view window] controlWillLookDifferent:(NSControl*)view];
    _enabled = !!flag;
    if (!is_controls) [self changed];
}
- (BOOL)isBordered {
    return _bordered;
}
// A border and a bezel exclude each other: setting or clearing one removes the other.
- (void)setBordered:(BOOL)flag {
    _bordered = !!flag;
    _bezeled = NO;
    [self changed];
}
- (BOOL)isBezeled {
    return _bezeled;
}
- (void)setBezeled:(BOOL)flag {
    _bezeled = !!flag;
    _bordered = NO;
    [self changed];
}
- (BOOL)isEditable {
    return _editable;
}
- (void)setEditable:(BOOL)flag {
    _editable = !!flag;
}
- (BOOL)wraps {
    return _wraps;
}
- (void)setWraps:(BOOL)flag {
    _wraps = !!flag;
    [self changed];
}
- (NSUInteger)alignment {
    return _alignment;
}
- (void)setAlignment:(NSUInteger)alignment {
    _alignment = alignment;
    [self changed];
}
- (NSFont*)font {
    return _font ? _font : [NSFont systemFontOfSize:[NSFont systemFontSize]];
}
- (void)setFont:(NSFont*)font {
    cocoa::set_retained(_font, font);
    [self changed];
}
- (void)setControlSize:(NSUInteger)__attribute__((unused))size {
}
- (id)target {
    return nil;
}
- (SEL)action {
    return 0;
}
- (BOOL)isContinuous {
    return NO;
}
- (BOOL)sendsActionOnEndEditing {
    return _sendsActionOnEndEditing;
}
- (void)setSendsActionOnEndEditing:(BOOL)flag {
    _sendsActionOnEndEditing = !!flag;
}
- (BOOL)acceptsFirstResponder {
    return _enabled;
}
- (BOOL)isHighlighted {
    return _highlighted;
}
- (void)setHighlighted:(BOOL)flag {
    _highlighted = !!flag;
}

- (void)drawWithFrame:(NSRect)__attribute__((unused))frame
               inView:(NSView*)__attribute__((unused))view {
}
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view {
    if (_highlighted == !!flag) return;
    _highlighted = !!flag;
    [self drawWithFrame:frame inView:view];
}
@end
