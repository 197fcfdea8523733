// The text that is edited, its selection and its commands.
#include "NSTextPrivate.h"

#include "NSWindowPrivate.h"
#include "Setters.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <string>
#include <vector>

@implementation NSText
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _text = [[NSMutableString alloc] init];
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
- (void)setFont:(NSFont*)font {
    cocoa::set_retained(_font, font);
    [self setNeedsDisplay:YES];
}
- (void)setTextColor:(NSColor*)color {
    cocoa::set_retained(_textColor, color);
    [self setNeedsDisplay:YES];
}
- (void)setField:(NSTextField*)field {
    _field = field;
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

- (BOOL)resignFirstResponder {
    [_field editorDidEnd:EditingEnd::FocusLost];
    return YES;
}

- (void)endEditing:(EditingEnd)end {
    NSWindow* window = [[[self window] retain] autorelease];
    NSTextField* field = [[_field retain] autorelease];
    [field editorDidEnd:end];
    // The action may have moved the focus or removed the field.
    if ([window firstResponder] != window || [field window] != window) return;
    if (end == EditingEnd::Return)
        [window makeFirstResponder:field];
    else
        [window selectKeyViewAfter:field forward:end == EditingEnd::Tab];
}

// Changes.

- (void)didChange {
    [self selectionChanged];
    [_field editorDidChange];
}

// One line: line breaks and other controls become spaces; function keys' characters are dropped.
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
    if (range.length == 0 && [text length] == 0) return;
    [_text replaceCharactersInRange:range withString:text];
    _anchor = _caret = range.location + [text length];
    [self didChange];
}

- (void)insertText:(id)text {
    if ([text length]) [self replace:[self selectedRange] with:as_line(text)];
}

// Positions. A surrogate pair is one character.

static bool is_low(unichar unit) {
    return (unit & 0xfc00) == 0xdc00;
}

- (NSUInteger)positionBefore:(NSUInteger)position {
    if (position == 0) return 0;
    --position;
    return position > 0 && is_low([_text characterAtIndex:position]) ? position - 1 : position;
}
- (NSUInteger)positionAfter:(NSUInteger)position {
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
    NSString* text = [_text substringWithRange:range];
    cocoa::WindowServer::shared().display().set_clipboard([text UTF8String]);
}
- (void)cut:(id)sender {
    [self copy:sender];
    [self delete:sender];
}
- (void)paste:(id)__attribute__((unused))sender {
    const std::string text = cocoa::WindowServer::shared().display().clipboard();
    [self insertText:[NSString stringWithUTF8String:text.c_str()]];
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
    [self deleteTo:[self positionBefore:_caret]];
}
- (void)deleteForward:(id)__attribute__((unused))sender {
    [self deleteTo:[self positionAfter:_caret]];
}
- (void)deleteWordBackward:(id)__attribute__((unused))sender {
    [self deleteTo:[self wordBefore:_caret]];
}
- (void)deleteWordForward:(id)__attribute__((unused))sender {
    [self deleteTo:[self wordAfter:_caret]];
}

// With a selection, the caret goes to the end of it that the arrow points to.
- (void)moveLeft:(id)__attribute__((unused))sender {
    const NSRange range = [self selectedRange];
    [self moveTo:range.length ? range.location : [self positionBefore:_caret] extending:NO];
}
- (void)moveRight:(id)__attribute__((unused))sender {
    const NSRange range = [self selectedRange];
    [self moveTo:range.length ? NSMaxRange(range) : [self positionAfter:_caret] extending:NO];
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
    [self moveTo:[self positionBefore:_caret] extending:YES];
}
- (void)moveRightAndModifySelection:(id)__attribute__((unused))sender {
    [self moveTo:[self positionAfter:_caret] extending:YES];
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
    [self endEditing:EditingEnd::Return];
}
- (void)insertTab:(id)__attribute__((unused))sender {
    [self endEditing:EditingEnd::Tab];
}
- (void)insertBacktab:(id)__attribute__((unused))sender {
    [self endEditing:EditingEnd::Backtab];
}
- (void)cancelOperation:(id)__attribute__((unused))sender {
    [_field editorDidCancel];
}
@end
