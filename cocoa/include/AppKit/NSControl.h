// A view with a cell, which draws it, tracks the mouse in it and holds its value and its action.
// Controls are flipped.
#pragma once

#include <AppKit/NSCell.h>
#include <AppKit/NSView.h>

@class NSEvent, NSFont, NSNotification, NSText;

@interface NSControl : NSView {
  @private
    id _cell;
    NSInteger _tag;
}
+ (Class)cellClass;
- (id)cell;
- (void)setCell:(NSCell*)cell; // takes nothing over from the cell that it replaces

- (id)target;
- (void)setTarget:(id)target; // not retained
- (SEL)action;
- (void)setAction:(SEL)action;
- (NSInteger)tag; // 0
- (void)setTag:(NSInteger)tag;
- (BOOL)sendAction:(SEL)action to:(id)target;
- (BOOL)isContinuous;
- (void)setContinuous:(BOOL)flag;

- (BOOL)isEnabled;
- (void)setEnabled:(BOOL)flag;
- (NSUInteger)alignment;
- (void)setAlignment:(NSUInteger)alignment;
- (NSFont*)font;
- (void)setFont:(NSFont*)font;

// The value, of a text that is being edited as it stands. Setting it ends the editing.
- (NSString*)stringValue;
- (void)setStringValue:(NSString*)text;
- (float)floatValue;
- (void)setFloatValue:(float)value;
- (double)doubleValue;
- (void)setDoubleValue:(double)value;
- (int)intValue;
- (void)setIntValue:(int)value;
- (NSInteger)integerValue;
- (void)setIntegerValue:(NSInteger)value;

- (void)performClick:(id)sender; // as a click would, if the control is enabled
- (void)sizeToFit;

// Editing.
- (NSText*)currentEditor; // nil unless the control is being edited
- (BOOL)abortEditing;     // drops what was typed; NO if there was no editing
- (void)validateEditing;  // the cell's value becomes what was typed
@end
