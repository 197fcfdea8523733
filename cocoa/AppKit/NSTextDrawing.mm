// How the edited text is drawn, and where its positions are.
#include "NSTextPrivate.h"

#include "NSViewPrivate.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>

using namespace cocoa;

@implementation NSText (Drawing)
// Coordinates like those of the field around it.
- (BOOL)isFlipped {
    return YES;
}

// How far from the start of the text a position is.
- (CGFloat)offsetOf:(NSUInteger)position {
    if (position == 0) return 0;
    return theme::measure([_text substringToIndex:position], _font).width;
}

// Scrolls so that the caret is visible and no room is left that text could fill.
- (void)selectionChanged {
    const double room = [self bounds].size.width - 1;
    const double caret = [self offsetOf:_caret], width = [self offsetOf:[_text length]];
    _scroll = std::min(_scroll, std::max(0.0, width - room));
    if (caret - _scroll > room) _scroll = caret - room;
    if (caret < _scroll) _scroll = caret;
    [self setNeedsDisplay:YES];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self selectionChanged];
}

- (NSUInteger)positionAt:(CGFloat)x {
    x += _scroll;
    NSUInteger low = 0, high = [_text length];
    // The last position that is not beyond x, then the nearer of it and the next.
    while (low < high) {
        const NSUInteger middle = (low + high + 1) / 2;
        if ([self offsetOf:middle] <= x)
            low = middle;
        else
            high = middle - 1;
    }
    if (low > 0 && low < [_text length] && ([_text characterAtIndex:low] & 0xfc00) == 0xdc00) --low;
    const NSUInteger next = [self positionAfter:low];
    return x - [self offsetOf:low] > [self offsetOf:next] - x ? next : low;
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    const NSRect bounds = [self bounds];
    const double start = -_scroll;
    const NSRange range = [self selectedRange];
    NSColor* color = _textColor ? _textColor : theme::text();
    if (range.length) {
        const double from = start + [self offsetOf:range.location];
        const double to = start + [self offsetOf:NSMaxRange(range)];
        [[theme::accent() colorWithAlphaComponent:0.45] setFill];
        NSRectFillUsingOperation(NSMakeRect(from, NSMinY(bounds), to - from, NSHeight(bounds)),
                                 NSCompositeSourceOver);
    }
    theme::draw_line(_text, NSMakeRect(start, NSMinY(bounds), NSWidth(bounds), NSHeight(bounds)),
                     _font, color, NSLeftTextAlignment);
    if (range.length == 0) {
        [color setFill];
        const double caret = std::min(start + [self offsetOf:_caret], NSWidth(bounds) - 1);
        NSRectFill(NSMakeRect(std::max(caret, 0.0), NSMinY(bounds), 1, NSHeight(bounds)));
    }
}

// The ring is around the field.
- (NSRect)focusRingRect {
    return NSZeroRect;
}
- (BOOL)canBecomeKeyView {
    return NO;
}
@end
