// How the edited text looks and how keys and mouse work on it.
#include "Internal.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

namespace {

// Which command a key stands for. The first entry that fits counts; `shift` -1 fits both.
struct KeyCommand {
    unsigned short character;
    int shift;
    bool word; // with Control or Option
    const char* command;
};
constexpr KeyCommand key_commands[] = {
    {NSDeleteCharacter, -1, false, "deleteBackward:"},
    {0x08, -1, false, "deleteBackward:"},
    {NSDeleteCharacter, -1, true, "deleteWordBackward:"},
    {NSDeleteFunctionKey, -1, false, "deleteForward:"},
    {NSDeleteFunctionKey, -1, true, "deleteWordForward:"},
    {NSLeftArrowFunctionKey, 0, false, "moveLeft:"},
    {NSRightArrowFunctionKey, 0, false, "moveRight:"},
    {NSLeftArrowFunctionKey, 1, false, "moveLeftAndModifySelection:"},
    {NSRightArrowFunctionKey, 1, false, "moveRightAndModifySelection:"},
    {NSLeftArrowFunctionKey, 0, true, "moveWordLeft:"},
    {NSRightArrowFunctionKey, 0, true, "moveWordRight:"},
    {NSLeftArrowFunctionKey, 1, true, "moveWordLeftAndModifySelection:"},
    {NSRightArrowFunctionKey, 1, true, "moveWordRightAndModifySelection:"},
    {NSHomeFunctionKey, 0, false, "moveToBeginningOfLine:"},
    {NSEndFunctionKey, 0, false, "moveToEndOfLine:"},
    {NSUpArrowFunctionKey, 0, false, "moveToBeginningOfLine:"},
    {NSDownArrowFunctionKey, 0, false, "moveToEndOfLine:"},
    {NSHomeFunctionKey, 1, false, "moveToBeginningOfLineAndModifySelection:"},
    {NSEndFunctionKey, 1, false, "moveToEndOfLineAndModifySelection:"},
    {NSUpArrowFunctionKey, 1, false, "moveToBeginningOfLineAndModifySelection:"},
    {NSDownArrowFunctionKey, 1, false, "moveToEndOfLineAndModifySelection:"},
    {NSCarriageReturnCharacter, -1, false, "insertNewline:"},
    {NSEnterCharacter, -1, false, "insertNewline:"},
    {NSTabCharacter, 0, false, "insertTab:"},
    {NSTabCharacter, 1, false, "insertBacktab:"},
    {NSBackTabCharacter, -1, false, "insertBacktab:"},
    {NSEscapeCharacter, -1, false, "cancelOperation:"},
};
constexpr struct {
    unsigned short character;
    const char* command;
} edit_commands[] = {{'a', "selectAll:"}, {'c', "copy:"}, {'x', "cut:"}, {'v', "paste:"}};

} // namespace

@implementation NSText (Display)
// Coordinates like those of the field around it.
- (BOOL)isFlipped {
    return YES;
}

// How far from the start of the text a position is.
- (CGFloat)offsetOf:(NSUInteger)position {
    if (position == 0) return 0;
    return theme::measure([_text substringToIndex:position], [self font]).width;
}

- (CGFloat)startOfText {
    const double room = [self bounds].size.width;
    const double width = [self offsetOf:[_text length]];
    if (width > room || _alignment == NSLeftTextAlignment) return -_scroll;
    return _alignment == NSRightTextAlignment ? room - width - 1 : (room - width) / 2;
}

// The caret stays in sight, and no room is left empty that text could fill.
- (void)selectionChanged {
    const double room = [self bounds].size.width - 1;
    const double caret = [self offsetOf:_caret], width = [self offsetOf:[_text length]];
    _scroll = std::min(_scroll, std::max(0.0, width - room));
    if (caret - _scroll > room) _scroll = caret - room;
    if (caret < _scroll) _scroll = caret;
    [self setNeedsDisplay:YES];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self selectionChanged];
}

- (NSUInteger)positionAt:(CGFloat)x {
    x -= [self startOfText];
    NSUInteger low = 0, high = [_text length];
    // The last position that does not lie behind x, then the nearer of it and the next.
    while (low < high) {
        const NSUInteger middle = (low + high + 1) / 2;
        if ([self offsetOf:middle] <= x)
            low = middle;
        else
            high = middle - 1;
    }
    if (low > 0 && low < [_text length] && ([_text characterAtIndex:low] & 0xfc00) == 0xdc00) --low;
    const NSUInteger next = [self after:low];
    return x - [self offsetOf:low] > [self offsetOf:next] - x ? next : low;
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    const NSRect bounds = [self bounds];
    const double start = [self startOfText];
    const NSRange range = [self selectedRange];
    NSColor* color = _textColor ? _textColor : theme::text();
    if (range.length) {
        const double from = start + [self offsetOf:range.location];
        const double to = start + [self offsetOf:NSMaxRange(range)];
        [[theme::accent() colorWithAlphaComponent:0.45] setFill];
        NSRectFillUsingOperation(NSMakeRect(from, NSMinY(bounds), to - from, NSHeight(bounds)),
                                 NSCompositeSourceOver);
    }
    theme::draw_line(_text, NSMakeRect(start, NSMinY(bounds), NSWidth(bounds), NSHeight(bounds)),
                     [self font], color, NSLeftTextAlignment);
    if (range.length == 0 && _editable) {
        [color setFill];
        const double caret = std::min(start + [self offsetOf:_caret], NSWidth(bounds) - 1);
        NSRectFill(NSMakeRect(std::max(caret, 0.0), NSMinY(bounds), 1, NSHeight(bounds)));
    }
}

// The ring is the field's.
- (NSRect)focusRingRect {
    return NSZeroRect;
}
- (BOOL)canBecomeKeyView {
    return NO;
}

// One click sets the caret, two select a word, three all; a drag extends.
- (void)mouseDown:(NSEvent*)event {
    NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
    const NSUInteger at = [self positionAt:point.x];
    if ([event clickCount] >= 3) {
        [self selectAll:nil];
    } else if ([event clickCount] == 2) {
        [self setSelectedRange:[self wordAt:at]];
    } else {
        [self moveTo:at extending:([event modifierFlags] & NSShiftKeyMask) != 0];
    }
    const BOOL extends = [event clickCount] < 2;
    while (extends) {
        event = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                                   untilDate:[NSDate distantFuture]
                                      inMode:NSEventTrackingRunLoopMode
                                     dequeue:YES];
        if ([event type] != NSLeftMouseDragged) return;
        point = [self convertPoint:[event locationInWindow] fromView:nil];
        [self moveTo:[self positionAt:point.x] extending:YES];
    }
}
// What the mouse does to the text is no business of the field's.
- (void)mouseUp:(NSEvent*)__attribute__((unused))event {
}

// Copying and its like go before the key equivalents of the menu bar, for the view with the focus.
- (BOOL)performKeyEquivalent:(NSEvent*)event {
    if ([[self window] firstResponder] != self) return NO;
    NSString* key = [event charactersIgnoringModifiers];
    if ([key length] != 1 || ([event modifierFlags] & (NSShiftKeyMask | NSAlternateKeyMask)))
        return NO;
    for (const auto& entry : edit_commands)
        if (entry.character == [key characterAtIndex:0]) {
            [self doCommandBySelector:sel_registerName(entry.command)];
            return YES;
        }
    return NO;
}

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    if ([characters length] == 0) return;
    const unichar character = [characters characterAtIndex:0];
    const NSUInteger flags = [event modifierFlags];
    const int shift = (flags & NSShiftKeyMask) != 0;
    const bool word = flags & (NSControlKeyMask | NSAlternateKeyMask);
    for (const KeyCommand& entry : key_commands) {
        if (entry.character != character || entry.word != word) continue;
        if (entry.shift != -1 && entry.shift != shift) continue;
        [self doCommandBySelector:sel_registerName(entry.command)];
        return;
    }
    const bool command = flags & (NSCommandKeyMask | NSControlKeyMask);
    const bool writes =
        character >= ' ' && character != 0x7f && !(character >= 0xf700 && character < 0xf900);
    if (writes && !command)
        [self insertText:characters];
    else
        [super keyDown:event];
}
@end
