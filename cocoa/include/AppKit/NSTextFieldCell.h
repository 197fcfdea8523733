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
- (NSColor*)backgroundColor;
- (void)setBackgroundColor:(NSColor*)color;
- (BOOL)drawsBackground;
- (void)setDrawsBackground:(BOOL)flag;
- (NSColor*)textColor;
- (void)setTextColor:(NSColor*)color;
- (NSRect)titleRectForBounds:(NSRect)bounds; // the line of text
@end
