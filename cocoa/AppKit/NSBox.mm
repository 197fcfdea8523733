#include <AppKit/NSBox.h>

#include "Setters.h"
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
    return self;
}
- (void)dealloc {
    [_title release];
    [super dealloc];
}

- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    set_copied(_title, title);
    [self setNeedsDisplay:YES];
}

// A box takes no clicks: they go to what it frames, inside it or behind it.
- (NSView*)hitTest:(NSPoint)point {
    NSView* hit = [super hitTest:point];
    return hit == self ? nil : hit;
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    NSFont* font = [NSFont systemFontOfSize:[NSFont smallSystemFontSize]];
    const NSRect bounds = [self bounds];
    const double line = std::ceil(theme::measure(@"X", font).height);
    theme::draw_round(NSMakeRect(0, 0, NSWidth(bounds), std::max(0.0, NSHeight(bounds) - line)), 3,
                      nil, theme::neutral(0.55));
    theme::draw_line(_title, NSMakeRect(7, NSMaxY(bounds) - line, NSWidth(bounds), line), font,
                     theme::neutral(1), NSLeftTextAlignment);
}
@end
