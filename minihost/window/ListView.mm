#include "minihost/window/ListView.h"

#include "minihost/window/WindowLayout.h"
#include "minihost/window/WindowStyle.h"

#include <algorithm>
#include <cmath>

using namespace minihost;

namespace {

constexpr double scroll_bar_width = 12, min_knob_height = 24, rows_per_wheel_line = 3;

} // namespace

@implementation ListView
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) _cursor = -1;
    return self;
}
- (BOOL)isFlipped {
    return YES;
}
- (BOOL)acceptsFirstResponder {
    return YES;
}
- (BOOL)becomeFirstResponder {
    if (_cursor < 0 && [self rowCount]) _cursor = 0;
    [self setNeedsDisplay:YES];
    return YES;
}
- (BOOL)resignFirstResponder {
    [self setNeedsDisplay:YES];
    return YES;
}
- (BOOL)hasFocus {
    return [[self window] firstResponder] == self && [[self window] isKeyWindow];
}

// Geometry.

- (NSRect)rowsRect {
    const NSRect bounds = [self bounds];
    return NSMakeRect(0, header_height, NSWidth(bounds),
                      std::max(0.0, NSHeight(bounds) - header_height));
}
- (CGFloat)maxScroll {
    return std::max(0.0, [self rowCount] * row_height - NSHeight([self rowsRect]));
}
- (NSRect)rectOfRow:(NSInteger)row {
    const NSRect rows = [self rowsRect];
    const double width = NSWidth(rows) - ([self maxScroll] > 0 ? scroll_bar_width : 0);
    return NSMakeRect(0, NSMinY(rows) + row * row_height - _scroll, width, row_height);
}
- (NSInteger)rowAt:(CGFloat)y {
    const double row = std::floor((y - header_height + _scroll) / row_height);
    if (row < 0) return 0;
    return std::min(static_cast<NSInteger>(row), [self rowCount]);
}
- (NSRect)scrollBarRect {
    const NSRect rows = [self rowsRect];
    return NSMakeRect(NSMaxX(rows) - scroll_bar_width, NSMinY(rows), scroll_bar_width,
                      NSHeight(rows));
}
- (NSRect)knobRect {
    const NSRect bar = [self scrollBarRect];
    const double all = [self rowCount] * row_height, seen = NSHeight(bar);
    if (all <= seen) return NSZeroRect;
    const double height = std::min(seen, std::max(min_knob_height, seen * seen / all));
    const double top = (seen - height) * _scroll / [self maxScroll];
    return NSMakeRect(NSMinX(bar) + 3, NSMinY(bar) + top, scroll_bar_width - 6, height);
}

// Scrolling, by whole rows.

- (void)scrollTo:(CGFloat)scroll {
    const double limit = std::ceil([self maxScroll] / row_height) * row_height;
    scroll = std::clamp(std::round(scroll / row_height) * row_height, 0.0, limit);
    if (scroll == _scroll) return;
    _scroll = scroll;
    [self setNeedsDisplay:YES];
}
- (void)showRow:(NSInteger)row {
    const double top = row * row_height, seen = NSHeight([self rowsRect]);
    if (top < _scroll) [self scrollTo:top];
    if (top + row_height > _scroll + seen)
        [self scrollTo:std::ceil((top + row_height - seen) / row_height) * row_height];
}
- (void)rowsChanged {
    _cursor = std::min(_cursor, [self rowCount] - 1);
    [self scrollTo:_scroll];
    [self setNeedsDisplay:YES];
}
- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self scrollTo:_scroll];
}
- (void)scrollWheel:(NSEvent*)event {
    [self scrollTo:_scroll - [event deltaY] * rows_per_wheel_line * row_height];
}

- (NSInteger)cursor {
    return _cursor;
}
- (void)setCursor:(NSInteger)row {
    _cursor = row;
    if (row >= 0) [self showRow:row];
    [self setNeedsDisplay:YES];
}

// Mouse.

- (NSEvent*)nextDrag {
    NSEvent* event = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                                        untilDate:[NSDate distantFuture]
                                           inMode:NSEventTrackingRunLoopMode
                                          dequeue:YES];
    return [event type] == NSLeftMouseDragged ? event : nil;
}

- (void)dragScrollBar:(NSEvent*)event {
    const NSRect bar = [self scrollBarRect], knob = [self knobRect];
    if (NSIsEmptyRect(knob)) return;
    NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
    const bool on_knob = point.y >= NSMinY(knob) && point.y < NSMaxY(knob);
    // Where on the knob the mouse holds it.
    const double grip = on_knob ? point.y - NSMinY(knob) : NSHeight(knob) / 2;
    while (event) {
        point = [self convertPoint:[event locationInWindow] fromView:nil];
        const double room = NSHeight(bar) - NSHeight(knob);
        if (room > 0) [self scrollTo:(point.y - grip - NSMinY(bar)) / room * [self maxScroll]];
        event = [self nextDrag];
    }
}

- (void)mouseDown:(NSEvent*)event {
    NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
    if (point.y < header_height) return;
    if ([self maxScroll] > 0 && NSPointInRect(point, [self scrollBarRect])) {
        [self dragScrollBar:event];
        return;
    }
    const NSInteger row = [self rowAt:point.y];
    const bool on_row = row < [self rowCount];
    if (on_row) [self setCursor:row];
    [self pressRow:on_row ? row : -1 modifiers:[event modifierFlags]];
    if (on_row && [event clickCount] == 2) {
        [self openRow:row];
        return;
    }
    NSInteger last = row;
    while (on_row && (event = [self nextDrag])) {
        point = [self convertPoint:[event locationInWindow] fromView:nil];
        const NSInteger at = std::min([self rowAt:point.y], [self rowCount] - 1);
        if (at == last || at < 0) continue;
        last = at;
        [self setCursor:at];
        [self dragToRow:at];
    }
}

// Keys.

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    const NSInteger count = [self rowCount];
    const auto page = static_cast<NSInteger>(std::max(1.0, NSHeight([self rowsRect]) / row_height));
    NSInteger row = _cursor;
    switch (key) {
    case NSUpArrowFunctionKey:
        row -= 1;
        break;
    case NSDownArrowFunctionKey:
        row += 1;
        break;
    case NSHomeFunctionKey:
        row = 0;
        break;
    case NSEndFunctionKey:
        row = count - 1;
        break;
    case NSPageUpFunctionKey:
        row -= page;
        break;
    case NSPageDownFunctionKey:
        row += page;
        break;
    case ' ':
        if (row >= 0 && row < count) [self pressRow:row modifiers:NSControlKeyMask];
        return;
    case NSCarriageReturnCharacter:
        if (row >= 0 && row < count)
            [self openRow:row];
        else
            [super keyDown:event];
        return;
    default:
        [super keyDown:event];
        return;
    }
    if (count == 0) return;
    row = std::clamp<NSInteger>(row, 0, count - 1);
    [self setCursor:row];
    [self moveToRow:row extending:([event modifierFlags] & NSShiftKeyMask) != 0];
}

// Drawing.

- (void)drawRowAt:(NSInteger)row {
    const NSRect rect = [self rectOfRow:row];
    const BOOL selected = [self isRowSelected:row], focus = [self hasFocus];
    style::ColorRole background = row % 2 ? style::ColorRole::Stripe : style::ColorRole::List;
    style::ColorRole text = style::ColorRole::Text;
    if (selected) {
        background = focus ? style::ColorRole::Selected : style::ColorRole::SelectedIdle;
        if (focus) text = style::ColorRole::SelectedText;
    }
    style::fill(rect, background);
    [self drawRow:row inRect:rect color:style::color(text)];
    if (focus && row == _cursor) {
        [style::color(style::ColorRole::Highlight) setFill];
        NSFrameRect(rect);
    }
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    const NSRect bounds = [self bounds], rows = [self rowsRect];
    style::fill(rows, style::ColorRole::List);
    [NSGraphicsContext saveGraphicsState];
    NSRectClip(rows);
    const NSInteger count = [self rowCount];
    for (NSInteger row = [self rowAt:NSMinY(rows)];
         row < count && NSMinY([self rectOfRow:row]) < NSMaxY(rows); ++row)
        [self drawRowAt:row];
    if (count == 0)
        style::draw_text([self emptyText], NSInsetRect(rows, 12, 0),
                         style::color(style::ColorRole::DimText), NSCenterTextAlignment);
    const NSRect knob = [self knobRect];
    if (!NSIsEmptyRect(knob)) {
        style::fill([self scrollBarRect], style::ColorRole::Stripe);
        [style::color(style::ColorRole::DimText) setFill];
        [[NSBezierPath bezierPathWithRoundedRect:knob xRadius:3 yRadius:3] fill];
    }
    [NSGraphicsContext restoreGraphicsState];
    style::fill(NSMakeRect(0, 0, NSWidth(bounds), header_height), style::ColorRole::Header);
    [self drawHeader:NSMakeRect(0, 0, NSWidth([self rectOfRow:0]), header_height)];
}
@end
