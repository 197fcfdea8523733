// The cell of labels and of fields to type in.
#pragma once

#include <AppKit/NSActionCell.h>

@class NSColor;

@interface NSTextFieldCell : NSActionCell {
  @private
    NSColor* _backgroundColor;
    NSColor* _textColor;
    BOOL _drawsBackground;
}
- (void)setBackgroundColor:(NSColor*)color;
- (void)setDrawsBackground:(BOOL)flag;
- (NSColor*)textColor;
- (void)setTextColor:(NSColor*)color;
- (NSRect)titleRectForBounds:(NSRect)bounds; // the line of text
@end
