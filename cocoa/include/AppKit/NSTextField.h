// A text that is shown or typed in: by default bezeled, with a background, editable.
//
// 1. A click or Tab starts editing in the window's field editor: a click sets the caret, Tab
//    selects all.
// 2. Return ends editing and sends the action; the field keeps the focus, with its text selected.
// 3. Tab, Shift-Tab and the loss of the focus end editing; the action is sent if the text was
//    edited and the cell sends its action on the end of editing (text fields do).
// 4. Escape restores the text from before the editing.
#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSTextFieldCell.h>

@class NSColor, NSText;

@interface NSTextField : NSControl {
  @private
    NSText* _editor;     // while editing; held by the window
    NSString* _original; // the text from before the editing
    BOOL _edited;
}
- (BOOL)isEditable;
- (void)setEditable:(BOOL)flag;
- (void)setBordered:(BOOL)flag;
- (void)setBezeled:(BOOL)flag;
- (void)setDrawsBackground:(BOOL)flag;
- (void)setBackgroundColor:(NSColor*)color;
- (NSColor*)textColor;
- (void)setTextColor:(NSColor*)color;
- (void)selectText:(id)sender; // starts editing with all selected
@end
