#include <AppKit/NSSlider.h>

#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

static const double knob_size = 12;

@implementation NSSliderCell
- (BOOL)isContinuous {
    return YES;
}

- (double)doubleValue {
    return _value;
}
// Clamped; NaN is 0.
- (void)setDoubleValue:(double)value {
    _value = value > 0 ? std::min(value, 1.0) : 0;
    [[self controlView] setNeedsDisplay:YES];
}
- (void)setFloatValue:(float)value {
    [self setDoubleValue:value];
}
- (NSString*)stringValue {
    return [NSString stringWithFormat:@"%0.16g", _value];
}
- (void)setStringValue:(NSString*)text {
    [self setDoubleValue:[text doubleValue]];
}

- (BOOL)isVerticalIn:(NSRect)bounds {
    return NSHeight(bounds) > NSWidth(bounds);
}
- (double)travelIn:(NSRect)bounds {
    return std::max(1.0, std::max(NSWidth(bounds), NSHeight(bounds)) - knob_size);
}
- (NSRect)knobRectInBounds:(NSRect)bounds {
    const double along = _value * [self travelIn:bounds];
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

// Tracking: the knob keeps its distance from the mouse; a click beside it moves its middle there.
// The value follows the mouse even outside of the slider.

+ (BOOL)prefersTrackingUntilMouseUp {
    return YES;
}

- (double)placeOf:(NSPoint)point in:(NSRect)bounds {
    return [self isVerticalIn:bounds] ? NSMaxY(bounds) - point.y : point.x - NSMinX(bounds);
}

- (void)moveTo:(NSPoint)point inView:(NSView*)view {
    const NSRect bounds = [view bounds];
    const double along = [self placeOf:point in:bounds] - _grip - knob_size / 2;
    [self setDoubleValue:along / [self travelIn:bounds]];
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
- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const double now = [[self sliderCell] doubleValue];
    double value = now;
    switch ([characters length] == 1 ? [characters characterAtIndex:0] : 0) {
    case NSLeftArrowFunctionKey:
    case NSDownArrowFunctionKey:
        value = now - 0.05;
        break;
    case NSRightArrowFunctionKey:
    case NSUpArrowFunctionKey:
        value = now + 0.05;
        break;
    case NSHomeFunctionKey:
        value = 0;
        break;
    case NSEndFunctionKey:
        value = 1;
        break;
    default:
        [[self nextResponder] keyDown:event];
        return;
    }
    if (![self isEnabled]) return;
    [[self sliderCell] setDoubleValue:value];
    if ([[self sliderCell] doubleValue] != now) [self sendAction:[self action] to:[self target]];
}
@end
