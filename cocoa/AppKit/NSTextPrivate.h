// What a field editor and the text field that it edits need of each other.
#pragma once

#include <AppKit/NSText.h>
#include <AppKit/NSTextField.h>

// What ends the editing.
enum class EditingEnd { FocusLost, Return, Tab, Backtab };

@interface NSText (Private)
- (void)setField:(NSTextField*)field; // not retained
- (void)selectionChanged;
- (NSUInteger)positionAfter:(NSUInteger)position;
- (NSUInteger)positionAt:(CGFloat)x;
- (NSRange)wordAt:(NSUInteger)position;
- (void)moveTo:(NSUInteger)position extending:(BOOL)extending;
@end

@interface NSTextField (FieldEditor)
- (void)editorDidChange;
- (void)editorDidEnd:(EditingEnd)end;
- (void)editorDidCancel;
@end
