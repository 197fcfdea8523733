// The keys and the mouse in the edited text.
#include "NSTextPrivate.h"

#include "NSApplicationPrivate.h"

#include <AppKit/AppKit.h>

namespace {

// The command of a key: that of the first entry that matches. A `shift` of -1 matches both.
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

@implementation NSText (Events)
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
        event = [NSApp nextDragOrMouseUp];
        if ([event type] != NSLeftMouseDragged) return;
        point = [self convertPoint:[event locationInWindow] fromView:nil];
        [self moveTo:[self positionAt:point.x] extending:YES];
    }
}

// Copy, cut, paste and select all take precedence over the key equivalents of the menu bar.
- (BOOL)performKeyEquivalent:(NSEvent*)event {
    if ([[self window] firstResponder] != self) return NO;
    NSString* key = [event charactersIgnoringModifiers];
    if ([key length] != 1 || ([event modifierFlags] & (NSShiftKeyMask | NSAlternateKeyMask)))
        return NO;
    for (const auto& entry : edit_commands)
        if (entry.character == [key characterAtIndex:0]) {
            [self performSelector:sel_registerName(entry.command) withObject:nil];
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
        [self performSelector:sel_registerName(entry.command) withObject:nil];
        return;
    }
    const bool command = flags & (NSCommandKeyMask | NSControlKeyMask);
    const bool types =
        character >= ' ' && character != 0x7f && !(character >= 0xf700 && character < 0xf900);
    if (types && !command)
        [self insertText:characters];
    else
        [super keyDown:event];
}
@end
