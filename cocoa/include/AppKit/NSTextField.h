// A text that is shown or typed in: by default bezeled, with a background, editable.
//
// 1. A click or Tab starts editing in the window's field editor: a click sets the caret, Tab
//    selects all.
// 2. Return ends editing and sends the action; the field keeps the focus, with its text selected.
// 3. Tab, Shift-Tab and the loss of the focus end editing; the action is sent if the text was
//    edited and the cell sends its action on the end of editing (text fields do).
// 4. Escape brings back the text from before the editing.
// The delegate is told when the first change, each change and the end come.
#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSTextFieldCell.h>

@class NSColor, NSText;

@protocol NSTextFieldDelegate <NSObject>
@optional
- (void)controlTextDidBeginEditing:(NSNotification*)notification;
- (void)controlTextDidChange:(NSNotification*)notification;
- (void)controlTextDidEndEditing:(NSNotification*)notification;
@end

FOUNDATION_EXPORT NSString* const NSControlTextDidBeginEditingNotification;
FOUNDATION_EXPORT NSString* const NSControlTextDidChangeNotification;
FOUNDATION_EXPORT NSString* const NSControlTextDidEndEditingNotification;

@interface NSTextField : NSControl {
  @private
    id<NSTextFieldDelegate> _delegate; // not retained
    NSText* _editor;                   // while editing; held by the window
    NSString* _original;               // the text from before the editing
    BOOL _edited;
}
- (BOOL)isEditable;
- (void)setEditable:(BOOL)flag;
- (BOOL)isSelectable;
- (void)setSelectable:(BOOL)flag;
- (BOOL)isBordered;
- (void)setBordered:(BOOL)flag;
- (BOOL)isBezeled;
- (void)setBezeled:(BOOL)flag;
- (BOOL)drawsBackground;
- (void)setDrawsBackground:(BOOL)flag;
- (NSColor*)backgroundColor;
- (void)setBackgroundColor:(NSColor*)color;
- (NSColor*)textColor;
- (void)setTextColor:(NSColor*)color;
- (id<NSTextFieldDelegate>)delegate;
- (void)setDelegate:(id<NSTextFieldDelegate>)delegate;
- (void)selectText:(id)sender; // starts editing with all selected

// From the field editor.
- (void)textDidChange:(NSNotification*)notification;
- (void)textDidEndEditing:(NSNotification*)notification;
@end
