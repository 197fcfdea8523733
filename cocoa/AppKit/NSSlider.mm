#include <AppKit/NSSlider.h>

#include "Internal.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

static const double knob_size = 12;

@implementation NSSliderCell
- (id)init {
    self = [super init];
    if (!self) return nil;
    _maxValue = 1;
    [self setContinuous:YES];
    return self;
}

- (double)minValue {
    return _minValue;
}
- (void)setMinValue:(double)value {
    _minValue = value;
    [self setDoubleValue:_value];
}
- (double)maxValue {
    return _maxValue;
}
- (void)setMaxValue:(double)value {
    _maxValue = value;
    [self setDoubleValue:_value];
}

- (double)doubleValue {
    return _value;
}
// Cut to the bounds; what is no number is the lower one.
- (void)setDoubleValue:(double)value {
    _value = value > _minValue ? std::min(value, std::max(_minValue, _maxValue)) : _minValue;
    [[self controlView] setNeedsDisplay:YES];
}
- (float)floatValue {
    return static_cast<float>(_value);
}
- (void)setFloatValue:(float)value {
    [self setDoubleValue:value];
}
- (int)intValue {
    return static_cast<int>(std::clamp(_value, -2147483648.0, 2147483647.0));
}
- (void)setIntValue:(int)value {
    [self setDoubleValue:value];
}
- (NSInteger)integerValue {
    return static_cast<NSInteger>(std::clamp(_value, -9.2e18, 9.2e18));
}
- (void)setIntegerValue:(NSInteger)value {
    [self setDoubleValue:static_cast<double>(value)];
}
- (NSString*)stringValue {
    return [[NSNumber numberWithDouble:_value] stringValue];
}
- (void)setStringValue:(NSString*)text {
    [self setDoubleValue:[text doubleValue]];
}
// A slider has a value, not a state.
- (NSInteger)nextState {
    return [self state];
}

- (BOOL)isVerticalIn:(NSRect)bounds {
    return NSHeight(bounds) > NSWidth(bounds);
}
- (double)travelIn:(NSRect)bounds {
    return std::max(1.0, std::max(NSWidth(bounds), NSHeight(bounds)) - knob_size);
}
- (double)fraction {
    return _maxValue > _minValue ? (_value - _minValue) / (_maxValue - _minValue) : 0;
}

- (NSRect)knobRectInBounds:(NSRect)bounds {
    const double along = [self fraction] * [self travelIn:bounds];
    if ([self isVerticalIn:bounds])
        return NSMakeRect(NSMidX(bounds) - knob_size / 2,
                          NSMinY(bounds) + [self travelIn:bounds] - along, knob_size, knob_size);
    return NSMakeRect(NSMinX(bounds) + along, NSMidY(bounds) - knob_size / 2, knob_size, knob_size);
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    [self setControlView:view];
    const NSRect knob = [self knobRectInBounds:frame];
    NSRect track = NSInsetRect(frame, knob_size / 2, 0);
    track.origin.y = NSMidY(frame) - 2;
    track.size.height = 4;
    NSRect filled = track;
    filled.size.width = std::max(0.0, NSMidX(knob) - NSMinX(track));
    if ([self isVerticalIn:frame]) {
        track = NSMakeRect(NSMidX(frame) - 2, NSMinY(frame) + knob_size / 2, 4,
                           NSHeight(frame) - knob_size);
        filled = NSMakeRect(NSMinX(track), NSMidY(knob), 4, NSMaxY(track) - NSMidY(knob));
    }
    theme::draw_round(track, 2, theme::neutral(0.5), nil);
    if ([self isEnabled]) theme::draw_round(filled, 2, theme::accent(), nil);
    theme::draw_round(knob, knob_size / 2, [self isEnabled] ? theme::knob() : theme::dim_text(),
                      theme::button_outline());
}

- (void)highlight:(BOOL)flag
        withFrame:(NSRect)__attribute__((unused))frame
           inView:(NSView*)__attribute__((unused))view {
    [self setHighlighted:flag];
}

// Tracking: the knob keeps its distance from the mouse that took it; a click beside it brings its
// middle there. The value moves with the mouse wherever that goes.

+ (BOOL)prefersTrackingUntilMouseUp {
    return YES;
}

- (double)placeOf:(NSPoint)point in:(NSRect)bounds {
    return [self isVerticalIn:bounds] ? NSMaxY(bounds) - point.y : point.x - NSMinX(bounds);
}

- (void)moveTo:(NSPoint)point inView:(NSView*)view {
    const NSRect bounds = [view bounds];
    const double along = [self placeOf:point in:bounds] - _grip - knob_size / 2;
    const double fraction = std::clamp(along / [self travelIn:bounds], 0.0, 1.0);
    [self setDoubleValue:_minValue + fraction * (_maxValue - _minValue)];
}

- (BOOL)startTrackingAt:(NSPoint)start inView:(NSView*)view {
    const NSRect bounds = [view bounds], knob = [self knobRectInBounds:bounds];
    const NSPoint middle = NSMakePoint(NSMidX(knob), NSMidY(knob));
    const BOOL on_knob = NSPointInRect(start, knob);
    _grip = on_knob ? [self placeOf:start in:bounds] - [self placeOf:middle in:bounds] : 0;
    if (on_knob) return YES;
    [self moveTo:start inView:view];
    if ([self isContinuous] && [view isKindOfClass:[NSControl class]])
        [(NSControl*)view sendAction:[self action] to:[self target]];
    return YES;
}
- (BOOL)continueTracking:(NSPoint)__attribute__((unused))last
                      at:(NSPoint)current
                  inView:(NSView*)view {
    [self moveTo:current inView:view];
    return YES;
}
- (void)stopTracking:(NSPoint)last
                  at:(NSPoint)stop
              inView:(NSView*)view
           mouseIsUp:(BOOL)__attribute__((unused))up {
    if (!NSEqualPoints(last, stop)) [self moveTo:stop inView:view];
}
@end

@implementation NSSlider
+ (Class)cellClass {
    return [NSSliderCell class];
}
- (NSSliderCell*)sliderCell {
    return (NSSliderCell*)[self cell];
}
- (double)minValue {
    return [[self sliderCell] minValue];
}
- (void)setMinValue:(double)value {
    [[self sliderCell] setMinValue:value];
}
- (double)maxValue {
    return [[self sliderCell] maxValue];
}
- (void)setMaxValue:(double)value {
    [[self sliderCell] setMaxValue:value];
}

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const double low = [self minValue], high = [self maxValue], now = [self doubleValue];
    double value = now;
    switch ([characters length] == 1 ? [characters characterAtIndex:0] : 0) {
    case NSLeftArrowFunctionKey:
    case NSDownArrowFunctionKey:
        value = now - (high - low) / 20;
        break;
    case NSRightArrowFunctionKey:
    case NSUpArrowFunctionKey:
        value = now + (high - low) / 20;
        break;
    case NSHomeFunctionKey:
        value = low;
        break;
    case NSEndFunctionKey:
        value = high;
        break;
    default:
        [[self nextResponder] keyDown:event];
        return;
    }
    if (![self isEnabled]) return;
    [self setDoubleValue:value];
    if ([self doubleValue] != now) [self sendAction:[self action] to:[self target]];
}
@end
