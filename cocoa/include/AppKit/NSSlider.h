// A knob on a line: a number from 0 to 1. A slider that is wider than high is horizontal (0 at the
// left), otherwise vertical (0 at the bottom). It sends its action at each step of a drag. With the
// focus, the arrows move it by a twentieth, Home and End to its ends.
#pragma once

#include <AppKit/NSActionCell.h>
#include <AppKit/NSControl.h>

@interface NSSliderCell : NSActionCell {
  @private
    double _value;
    CGFloat _grip; // from the knob's middle to where the mouse took it
}
@end

@interface NSSlider : NSControl
@end
