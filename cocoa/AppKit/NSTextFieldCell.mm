#include <AppKit/NSTextFieldCell.h>

#include "NSWindowPrivate.h"
#include "Setters.h"
#include "Theme.h"

#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSTextFieldCell
- (id)init {
    return [self initTextCell:@""];
}

- (id)initTextCell:(NSString*)text {
    self = [super initTextCell:text];
    if (!self) return nil;
    [self setSendsActionOnEndEditing:YES];
    // Dark on light whatever the theme, as on the platform: a program that sets one of the two
    // relies on the other.
    _backgroundColor = [[NSColor whiteColor] retain];
    _textColor = [[NSColor blackColor] retain];
    return self;
}

- (void)dealloc {
    [_backgroundColor release];
    [_textColor release];
    [super dealloc];
}

- (void)setBackgroundColor:(NSColor*)color {
    set_retained(_backgroundColor, color);
    [[self controlView] setNeedsDisplay:YES];
}
- (void)setDrawsBackground:(BOOL)flag {
    _drawsBackground = !!flag;
    [[self controlView] setNeedsDisplay:YES];
}
- (NSColor*)textColor {
    return _textColor;
}
- (void)setTextColor:(NSColor*)color {
    if (color == _textColor) return;
    NSView* view = [self controlView];
    if ([view isKindOfClass:[NSControl class]])
        [[view window] controlWillLookDifferent:(NSControl*)view];
    set_retained(_textColor, color);
}

- (BOOL)isFramed {
    return [self isBezeled] || [self isBordered];
}

// In the middle of a frame; without one at the top.
- (NSRect)titleRectForBounds:(NSRect)bounds {
    const double frame_width = [self isBezeled] ? 2 : [self isBordered] ? 1 : 0;
    const NSRect room = NSInsetRect(bounds, frame_width + 2, frame_width);
    if ([self wraps]) return room;
    const NSSize line = theme::measure(@"X", [self font]);
    const double y = [self isFramed] ? (room.size.height - line.height) / 2 : 0;
    return NSMakeRect(NSMinX(room), NSMinY(room) + y, NSWidth(room), line.height);
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    [self setControlView:view];
    if (_drawsBackground && _backgroundColor) {
        [_backgroundColor setFill];
        NSRectFill(frame);
    }
    if ([self isFramed]) theme::draw_round(frame, 0, nil, theme::neutral(0.9));
    // While it is edited, the field editor draws the text.
    if ([view isKindOfClass:[NSControl class]] && [(NSControl*)view currentEditor]) return;
    NSColor* color = _textColor ? _textColor : [NSColor blackColor];
    if (![self isEnabled] && _drawsBackground)
        color = [color colorWithAlphaComponent:[color alphaComponent] * 0.45];
    const NSRect line = [self titleRectForBounds:frame];
    if (![self wraps]) {
        theme::draw_line([self stringValue], line, [self font], color, [self alignment]);
        return;
    }
    NSMutableParagraphStyle* style =
        [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [style setAlignment:[self alignment]];
    [[self stringValue]
            drawInRect:line
        withAttributes:[NSDictionary
                           dictionaryWithObjectsAndKeys:[self font], NSFontAttributeName, color,
                                                        NSForegroundColorAttributeName, style,
                                                        NSParagraphStyleAttributeName, nil]];
}
@end
