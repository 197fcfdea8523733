// A line of text that is edited: the window's field editor. It works on UTF-16 units but never
// splits a pair of surrogates. A delegate hears of changes and of the end of the editing.
#pragma once

#include <AppKit/NSView.h>

@class NSColor, NSFont, NSMutableString, NSNotification;

// How editing ended, under the key NSTextMovement of NSTextDidEndEditingNotification's user info.
enum {
    NSIllegalTextMovement = 0,
    NSReturnTextMovement = 0x10,
    NSTabTextMovement = 0x11,
    NSBacktabTextMovement = 0x12,
    NSCancelTextMovement = 0x17
};
FOUNDATION_EXPORT NSString* const NSTextMovement;
FOUNDATION_EXPORT NSString* const NSTextDidChangeNotification;
FOUNDATION_EXPORT NSString* const NSTextDidEndEditingNotification;

@interface NSText : NSView {
  @private
    NSMutableString* _text;
    NSFont* _font;
    NSColor* _textColor;
    NSUInteger _alignment;
    id _delegate;       // not retained
    NSUInteger _anchor; // the end of the selection that stays
    NSUInteger _caret;  // the end that moves
    CGFloat _scroll;    // how far the text is moved to the left
    NSInteger _movement;
    BOOL _editable;
}
- (NSString*)string;
- (void)setString:(NSString*)text; // the caret goes to its end; nobody is told
- (NSFont*)font;
- (void)setFont:(NSFont*)font;
- (NSColor*)textColor;
- (void)setTextColor:(NSColor*)color;
- (NSUInteger)alignment;
- (void)setAlignment:(NSUInteger)alignment;
- (BOOL)isEditable;
- (void)setEditable:(BOOL)flag;
- (id)delegate;
- (void)setDelegate:(id)delegate;

- (NSRange)selectedRange;
- (void)setSelectedRange:(NSRange)range; // cut to the text
- (void)insertText:(id)text; // in place of the selection; line breaks and controls become blanks

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
