// The text that is edited, its selection and its commands.
#include <AppKit/NSText.h>

#include "Internal.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <string>
#include <vector>

NSString* const NSTextMovement = @"NSTextMovement";
NSString* const NSTextDidChangeNotification = @"NSTextDidChangeNotification";
NSString* const NSTextDidEndEditingNotification = @"NSTextDidEndEditingNotification";

@interface NSObject (NSTextOwner)
- (void)textDidChange:(NSNotification*)notification;
- (void)textDidEndEditing:(NSNotification*)notification;
- (void)textDidCancel;
@end

@implementation NSText
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _text = [[NSMutableString alloc] init];
    _editable = YES;
    return self;
}

- (void)dealloc {
    [_text release];
    [_font release];
    [_textColor release];
    [super dealloc];
}

- (NSString*)string {
    return [[_text copy] autorelease];
}
- (void)setString:(NSString*)text {
    [_text setString:text ? text : @""];
    _scroll = 0;
    _anchor = _caret = [_text length];
    [self selectionChanged];
}
- (NSFont*)font {
    return _font ? _font : [NSFont systemFontOfSize:[NSFont systemFontSize]];
}
- (void)setFont:(NSFont*)font {
    if (font == _font) return;
    [_font release];
    _font = [font retain];
    [self setNeedsDisplay:YES];
}
- (NSColor*)textColor {
    return _textColor;
}
- (void)setTextColor:(NSColor*)color {
    if (color == _textColor) return;
    [_textColor release];
    _textColor = [color retain];
    [self setNeedsDisplay:YES];
}
- (NSUInteger)alignment {
    return _alignment;
}
- (void)setAlignment:(NSUInteger)alignment {
    _alignment = alignment;
    [self setNeedsDisplay:YES];
}
- (BOOL)isEditable {
    return _editable;
}
- (void)setEditable:(BOOL)flag {
    _editable = !!flag;
}
- (id)delegate {
    return _delegate;
}
- (void)setDelegate:(id)delegate {
    _delegate = delegate;
}

- (NSRange)selectedRange {
    const NSUInteger from = std::min(_anchor, _caret);
    return NSMakeRange(from, std::max(_anchor, _caret) - from);
}
- (void)setSelectedRange:(NSRange)range {
    const NSUInteger length = [_text length];
    _anchor = std::min(range.location, length);
    _caret = _anchor + std::min(range.length, length - _anchor);
    [self selectionChanged];
}

- (BOOL)acceptsFirstResponder {
    return YES;
}

// The end of the editing, whoever asked for it.
- (BOOL)resignFirstResponder {
    NSDictionary* info = [NSDictionary dictionaryWithObject:[NSNumber numberWithInteger:_movement]
                                                     forKey:NSTextMovement];
    _movement = NSIllegalTextMovement;
    NSNotification* notification =
        [NSNotification notificationWithName:NSTextDidEndEditingNotification
                                      object:self
                                    userInfo:info];
    if ([_delegate respondsToSelector:@selector(textDidEndEditing:)])
        [_delegate textDidEndEditing:notification];
    return YES;
}

- (void)endEditingWithMovement:(NSInteger)movement {
    NSWindow* window = [[[self window] retain] autorelease];
    NSView* field = [[[self superview] retain] autorelease];
    _movement = movement;
    [window makeFirstResponder:nil];
    _movement = NSIllegalTextMovement;
    // Unless the action moved the focus itself.
    if ([window firstResponder] != window || [field window] != window) return;
    if (movement == NSReturnTextMovement)
        [window makeFirstResponder:field];
    else
        [window selectKeyViewAfter:field forward:movement == NSTabTextMovement];
}

// Changes.

- (void)didChange {
    [self selectionChanged];
    if (![_delegate respondsToSelector:@selector(textDidChange:)]) return;
    [_delegate textDidChange:[NSNotification notificationWithName:NSTextDidChangeNotification
                                                           object:self]];
}

// One line: line breaks and other controls become blanks, the characters of function keys go.
static NSString* as_line(NSString* text) {
    std::vector<unichar> units([text length]);
    if (units.empty()) return @"";
    [text getCharacters:units.data() range:NSMakeRange(0, units.size())];
    std::erase_if(units, [](unichar unit) { return unit >= 0xf700 && unit < 0xf900; });
    for (unichar& unit : units)
        if (unit < ' ' || unit == 0x7f || unit == 0x2028 || unit == 0x2029) unit = ' ';
    return [NSString stringWithCharacters:units.data() length:units.size()];
}

- (void)replace:(NSRange)range with:(NSString*)text {
    if (!_editable || (range.length == 0 && [text length] == 0)) return;
    [_text replaceCharactersInRange:range withString:text];
    _anchor = _caret = range.location + [text length];
    [self didChange];
}

- (void)insertText:(id)text {
    if ([text length]) [self replace:[self selectedRange] with:as_line(text)];
}

// Positions. A pair of surrogates is one character.

static bool is_low(unichar unit) {
    return (unit & 0xfc00) == 0xdc00;
}

- (NSUInteger)before:(NSUInteger)position {
    if (position == 0) return 0;
    --position;
    return position > 0 && is_low([_text characterAtIndex:position]) ? position - 1 : position;
}
- (NSUInteger)after:(NSUInteger)position {
    const NSUInteger length = [_text length];
    if (position >= length) return length;
    ++position;
    return position < length && is_low([_text characterAtIndex:position]) ? position + 1 : position;
}

static bool is_word(unichar unit) {
    return unit > 0x7f || (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'z') ||
           (unit >= 'A' && unit <= 'Z') || unit == '_' || unit == '.';
}
- (NSUInteger)wordBefore:(NSUInteger)position {
    while (position > 0 && !is_word([_text characterAtIndex:position - 1])) --position;
    while (position > 0 && is_word([_text characterAtIndex:position - 1])) --position;
    return position;
}
- (NSUInteger)wordAfter:(NSUInteger)position {
    const NSUInteger length = [_text length];
    while (position < length && !is_word([_text characterAtIndex:position])) ++position;
    while (position < length && is_word([_text characterAtIndex:position])) ++position;
    return position;
}
- (NSRange)wordAt:(NSUInteger)position {
    const NSUInteger length = [_text length];
    if (length == 0) return NSMakeRange(0, 0);
    const bool word = is_word([_text characterAtIndex:std::min(position, length - 1)]);
    NSUInteger from = std::min(position, length - 1), to = from;
    while (from > 0 && is_word([_text characterAtIndex:from - 1]) == word) --from;
    while (to < length && is_word([_text characterAtIndex:to]) == word) ++to;
    return NSMakeRange(from, to - from);
}

- (void)moveTo:(NSUInteger)position extending:(BOOL)extending {
    _caret = position;
    if (!extending) _anchor = position;
    [self selectionChanged];
}

// Commands.

- (void)selectAll:(id)__attribute__((unused))sender {
    [self setSelectedRange:NSMakeRange(0, [_text length])];
}
- (void)copy:(id)__attribute__((unused))sender {
    const NSRange range = [self selectedRange];
    if (range.length == 0) return;
    NSPasteboard* board = [NSPasteboard generalPasteboard];
    [board declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:nil];
    [board setString:[_text substringWithRange:range] forType:NSStringPboardType];
}
- (void)cut:(id)sender {
    [self copy:sender];
    [self delete:sender];
}
- (void)paste:(id)__attribute__((unused))sender {
    [self insertText:[[NSPasteboard generalPasteboard] stringForType:NSStringPboardType]];
}
- (void)delete:(id)__attribute__((unused))sender {
    [self replace:[self selectedRange] with:@""];
}

- (void)deleteTo:(NSUInteger)position {
    NSRange range = [self selectedRange];
    if (range.length == 0)
        range = NSMakeRange(std::min(position, _caret),
                            std::max(position, _caret) - std::min(position, _caret));
    [self replace:range with:@""];
}
- (void)deleteBackward:(id)__attribute__((unused))sender {
    [self deleteTo:[self before:_caret]];
}
- (void)deleteForward:(id)__attribute__((unused))sender {
    [self deleteTo:[self after:_caret]];
}
- (void)deleteWordBackward:(id)__attribute__((unused))sender {
    [self deleteTo:[self wordBefore:_caret]];
}
- (void)deleteWordForward:(id)__attribute__((unused))sender {
    [self deleteTo:[self wordAfter:_caret]];
}

// A selection is left at the end that the arrow points to.
- (void)moveLeft:(id)__attribute__((unused))sender {
    const NSRange range = [self selectedRange];
    [self moveTo:range.length ? range.location : [self before:_caret] extending:NO];
}
- (void)moveRight:(id)__attribute__((unused))sender {
    const NSRange range = [self selectedRange];
    [self moveTo:range.length ? NSMaxRange(range) : [self after:_caret] extending:NO];
}
- (void)moveWordLeft:(id)__attribute__((unused))sender {
    [self moveTo:[self wordBefore:_caret] extending:NO];
}
- (void)moveWordRight:(id)__attribute__((unused))sender {
    [self moveTo:[self wordAfter:_caret] extending:NO];
}
- (void)moveToBeginningOfLine:(id)__attribute__((unused))sender {
    [self moveTo:0 extending:NO];
}
- (void)moveToEndOfLine:(id)__attribute__((unused))sender {
    [self moveTo:[_text length] extending:NO];
}
- (void)moveLeftAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[self before:_caret] extending:YES];
}
- (void)moveRightAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[self after:_caret] extending:YES];
}
- (void)moveWordLeftAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[self wordBefore:_caret] extending:YES];
}
- (void)moveWordRightAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[self wordAfter:_caret] extending:YES];
}
- (void)moveToBeginningOfLineAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:0 extending:YES];
}
- (void)moveToEndOfLineAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[_text length] extending:YES];
}
- (void)insertNewline:(id)__attribute__((unused))sender {
    [self endEditingWithMovement:NSReturnTextMovement];
}
- (void)insertTab:(id)__attribute__((unused))sender {
    [self endEditingWithMovement:NSTabTextMovement];
}
- (void)insertBacktab:(id)__attribute__((unused))sender {
    [self endEditingWithMovement:NSBacktabTextMovement];
}
- (void)cancelOperation:(id)__attribute__((unused))sender {
    if ([_delegate respondsToSelector:@selector(textDidCancel)]) [_delegate textDidCancel];
}
@end
