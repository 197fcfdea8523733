// A cell's value and attributes.
#include <AppKit/NSCell.h>

#include "Internal.h"

#include <AppKit/AppKit.h>
#include <charconv>
#include <cmath>
#include <string>

// The digits that std::to_chars finds are the fewest that read back as the same number.
template <typename Number>
static NSString* shortest(Number value) {
    const Number size = std::fabs(value);
    const bool plain = size == 0 || (size >= Number(1e-5) && size < Number(1e16));
    char text[64];
    const auto end = plain
                         ? std::to_chars(text, text + sizeof text, value, std::chars_format::fixed)
                         : std::to_chars(text, text + sizeof text, value);
    return [NSString stringWithUTF8String:std::string(text, end.ptr).c_str()];
}

@implementation NSCell
- (id)init {
    self = [super init];
    if (!self) return nil;
    _contents = @"";
    _enabled = YES;
    _type = NSNullCellType;
    return self;
}

// Past the init of subclasses, which may come here.
- (id)initTextCell:(NSString*)text {
    self = [super init];
    if (!self) return nil;
    _contents = text ? [text copy] : @"";
    _enabled = YES;
    _type = NSTextCellType;
    return self;
}

- (void)dealloc {
    [_contents release];
    [_font release];
    [super dealloc];
}

- (NSCellType)type {
    return _type;
}
- (NSView*)controlView {
    return _controlView;
}
- (void)setControlView:(NSView*)view {
    _controlView = view;
}

// The control shows the change, wherever it is.
- (void)changed {
    [_controlView setNeedsDisplay:YES];
}

- (NSString*)stringValue {
    return _contents;
}
- (void)setStringValue:(NSString*)text {
    if (text != _contents) {
        [_contents release];
        _contents = text ? [text copy] : @"";
    }
    _type = NSTextCellType;
    [self changed];
}

- (float)floatValue {
    return [[self stringValue] floatValue];
}
- (void)setFloatValue:(float)value {
    [self setStringValue:shortest(value)];
}
- (double)doubleValue {
    return [[self stringValue] doubleValue];
}
- (void)setDoubleValue:(double)value {
    [self setStringValue:shortest(value)];
}
- (int)intValue {
    return [[self stringValue] intValue];
}
- (void)setIntValue:(int)value {
    [self setStringValue:[NSString stringWithFormat:@"%d", value]];
}
- (NSInteger)integerValue {
    return [[self stringValue] integerValue];
}
- (void)setIntegerValue:(NSInteger)value {
    [self setStringValue:[NSString stringWithFormat:@"%ld", value]];
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
    return _state == NSOffState ? NSOnState : NSOffState;
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
// A border and a bezel take each other's place: setting one, or clearing it, removes the other.
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
    if (flag) _selectable = YES;
}
- (BOOL)isSelectable {
    return _selectable;
}
- (void)setSelectable:(BOOL)flag {
    _selectable = !!flag;
    if (!flag) _editable = NO;
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
    if (font == _font) return;
    [_font release];
    _font = [font retain];
    [self changed];
}
- (NSControlSize)controlSize {
    return _controlSize;
}
- (void)setControlSize:(NSControlSize)size {
    _controlSize = size;
    [self changed];
}
- (NSInteger)tag {
    return _tag;
}
- (void)setTag:(NSInteger)tag {
    _tag = tag;
}
- (id)target {
    return nil;
}
- (SEL)action {
    return 0;
}
- (BOOL)isContinuous {
    return _continuous;
}
- (void)setContinuous:(BOOL)flag {
    _continuous = !!flag;
}
- (BOOL)sendsActionOnEndEditing {
    return _sendsActionOnEndEditing;
}
- (void)setSendsActionOnEndEditing:(BOOL)flag {
    _sendsActionOnEndEditing = !!flag;
}
- (BOOL)refusesFirstResponder {
    return _refusesFirstResponder;
}
- (void)setRefusesFirstResponder:(BOOL)flag {
    _refusesFirstResponder = !!flag;
}
- (BOOL)acceptsFirstResponder {
    return _enabled && !_refusesFirstResponder;
}
- (BOOL)isHighlighted {
    return _highlighted;
}
- (void)setHighlighted:(BOOL)flag {
    _highlighted = !!flag;
}
@end
