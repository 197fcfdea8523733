// A line of text that is edited: the window's field editor. It works on UTF-16 units but never
// splits a surrogate pair.
#pragma once

#include <AppKit/NSView.h>

@class NSColor, NSFont, NSMutableString, NSTextField;

@interface NSText : NSView {
  @private
    NSMutableString* _text;
    NSFont* _font;
    NSColor* _textColor;
    NSTextField* _field; // that it edits; not retained
    NSUInteger _anchor;  // the end of the selection that stays
    NSUInteger _caret;   // the end that moves
    CGFloat _scroll;     // how far the text is shifted to the left
}
- (NSString*)string;
- (void)setString:(NSString*)text; // the caret goes to its end
- (void)setFont:(NSFont*)font;
- (void)setTextColor:(NSColor*)color;

- (NSRange)selectedRange;
- (void)setSelectedRange:(NSRange)range; // clamped to the text
- (void)insertText:(id)text; // replaces the selection; line breaks and controls become spaces

// Commands, performed by name.
- (void)selectAll:(id)sender;
- (void)copy:(id)sender;
- (void)cut:(id)sender;
- (void)paste:(id)sender;
- (void)delete:(id)sender;
- (void)deleteBackward:(id)sender;
- (void)deleteForward:(id)sender;
- (void)deleteWordBackward:(id)sender;
- (void)deleteWordForward:(id)sender;
- (void)moveLeft:(id)sender;
- (void)moveRight:(id)sender;
- (void)moveWordLeft:(id)sender;
- (void)moveWordRight:(id)sender;
- (void)moveToBeginningOfLine:(id)sender;
- (void)moveToEndOfLine:(id)sender;
- (void)moveLeftAndModifySelection:(id)sender;
- (void)moveRightAndModifySelection:(id)sender;
- (void)moveWordLeftAndModifySelection:(id)sender;
- (void)moveWordRightAndModifySelection:(id)sender;
- (void)moveToBeginningOfLineAndModifySelection:(id)sender;
- (void)moveToEndOfLineAndModifySelection:(id)sender;
- (void)insertNewline:(id)sender;
- (void)insertTab:(id)sender;
- (void)insertBacktab:(id)sender;
- (void)cancelOperation:(id)sender;
@end
