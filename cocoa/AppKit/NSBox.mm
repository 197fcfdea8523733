#include <AppKit/NSBox.h>

#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSBox
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _title = @"Title";
    _titleFont = [[NSFont systemFontOfSize:[NSFont smallSystemFontSize]] retain];
    return self;
}
- (void)dealloc {
    [_title release];
    [_titleFont release];
    [super dealloc];
}

- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    if (title == _title) return;
    [_title release];
    _title = title ? [title copy] : @"";
    [self setNeedsDisplay:YES];
}
- (NSFont*)titleFont {
    return _titleFont;
}
- (void)setTitleFont:(NSFont*)font {
    if (!font || font == _titleFont) return;
    [_titleFont release];
    _titleFont = [font retain];
    [self setNeedsDisplay:YES];
}

- (double)titleHeight {
    return std::ceil(theme::measure(@"X", _titleFont).height);
}
- (NSRect)titleRect {
    const NSRect bounds = [self bounds];
    const double width = std::ceil(theme::measure(_title, _titleFont).width);
    return NSMakeRect(NSMinX(bounds) + 7, NSMaxY(bounds) - [self titleHeight],
                      [_title length] ? width : 0, [self titleHeight]);
}
- (NSRect)borderRect {
    NSRect rect = [self bounds];
    rect.size.height = std::max(0.0, rect.size.height - [self titleHeight]);
    return rect;
}

// A box takes no clicks itself: they go to what it frames, whether inside it or behind it.
- (NSView*)hitTest:(NSPoint)point {
    NSView* hit = [super hitTest:point];
    return hit == self ? nil : hit;
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    theme::draw_round([self borderRect], 3, nil, theme::neutral(0.55));
    theme::draw_line(_title, [self titleRect], _titleFont, theme::neutral(1), 0);
}
@end
