// A knob on a line: a number between two bounds. Wider than high it is horizontal (smallest at the
// left), otherwise vertical (smallest at the bottom). It sends its action at each step of a drag,
// or at its end alone if it is not continuous. With the focus, the arrows move it by a twentieth of
// its range, Home and End to the bounds.
#pragma once

#include <AppKit/NSActionCell.h>
#include <AppKit/NSControl.h>

@interface NSSliderCell : NSActionCell {
  @private
    double _value;
    double _minValue;
    double _maxValue;
    CGFloat _grip; // from the knob's middle to where the mouse took it
}
- (double)minValue; // 0
- (void)setMinValue:(double)value;
- (double)maxValue; // 1
- (void)setMaxValue:(double)value;
- (NSRect)knobRectInBounds:(NSRect)bounds;
@end

@interface NSSlider : NSControl
- (double)minValue;
- (void)setMinValue:(double)value;
- (double)maxValue;
- (void)setMaxValue:(double)value;
@end
