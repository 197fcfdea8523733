// A view with a cell, which draws it, tracks the mouse in it and holds its value and its action.
// Controls are flipped.
#pragma once

#include <AppKit/NSCell.h>
#include <AppKit/NSView.h>

@class NSFont, NSText;

@interface NSControl : NSView {
  @private
    id _cell;
    NSInteger _tag;
}
+ (Class)cellClass;
- (id)cell;
- (void)setCell:(NSCell*)cell; // keeps nothing of the cell that it replaces

- (id)target;
- (void)setTarget:(id)target; // not retained
- (SEL)action;
- (void)setAction:(SEL)action;
- (NSInteger)tag; // 0
- (void)setTag:(NSInteger)tag;
- (BOOL)sendAction:(SEL)action to:(id)target;

- (BOOL)isEnabled;
- (void)setEnabled:(BOOL)flag;
- (NSFont*)font;
- (void)setFont:(NSFont*)font;

// The value; of a text that is being edited, as typed so far. Setting it ends the editing.
- (NSString*)stringValue;
- (void)setStringValue:(NSString*)text;
- (void)setFloatValue:(float)value;

- (void)performClick:(id)sender; // as a click would, if the control is enabled

// Editing.
- (NSText*)currentEditor; // nil unless the control is being edited
- (BOOL)abortEditing;     // drops what was typed; NO if there was no editing
- (void)validateEditing;  // sets the cell's value to what was typed
@end
