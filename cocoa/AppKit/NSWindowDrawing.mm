// A window's pixels: what is redrawn, and when.
#include "NSViewPrivate.h"
#include "NSWindowPrivate.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/NSColor.h>
#include <AppKit/NSTextField.h>
#include <cmath>
#include <utility>

using cocoa::WindowServer;

@implementation NSWindow (NSWindowDrawing)
- (struct NSWindowState*)state {
    return _state;
}

- (void)addDirtyRect:(NSRect)rect {
    _state->dirty = NSUnionRect(_state->dirty, rect);
}

- (void)prepareState {
    const double scale = WindowServer::shared().scale();
    const int width = std::max(1, static_cast<int>(std::ceil(_frame.size.width * scale)));
    const int height = std::max(1, static_cast<int>(std::ceil(_frame.size.height * scale)));
    if (_state->width == width && _state->height == height && _state->scale == scale) return;
    _state->width = width;
    _state->height = height;
    _state->scale = scale;
    _state->pixels.assign(static_cast<size_t>(width) * height * 4, 0);
    _state->dirty = [_borderView frame];
}

// Rounded outwards to whole pixels, so that nothing is blended at the edges of what is redrawn.
static NSRect whole_pixels(NSRect rect, double scale, double height) {
    const double left = std::floor(NSMinX(rect) * scale), right = std::ceil(NSMaxX(rect) * scale);
    const double top = std::floor((height - NSMaxY(rect)) * scale);
    const double bottom = std::ceil((height - NSMinY(rect)) * scale);
    return NSMakeRect(left / scale, height - bottom / scale, (right - left) / scale,
                      (bottom - top) / scale);
}

static NSColor* text_color(NSControl* control) {
    return [control respondsToSelector:@selector(textColor)] ? [(NSTextField*)control textColor]
                                                             : nil;
}

- (void)controlWillLookDifferent:(NSControl*)control {
    for (const NSWindowState::Look& look : _state->looks)
        if (look.control == control) return;
    _state->looks.push_back({control, [control isEnabled], [text_color(control) retain]});
}

// A plug-in may disable everything and enable it again at each idle call: that redraws nothing.
- (void)invalidateChangedLooks {
    for (const NSWindowState::Look& look : std::exchange(_state->looks, {})) {
        NSColor* color = text_color(look.control);
        const BOOL same_color = color == look.color || [color isEqual:look.color];
        if ([look.control isEnabled] != look.enabled || !same_color)
            [look.control setNeedsDisplay:YES];
        [look.color release];
    }
}

- (void)displayIfNeeded {
    [self prepareState];
    [self invalidateChangedLooks];
    if (NSIsEmptyRect(_state->dirty)) return;
    const NSRect dirty = NSIntersectionRect(
        whole_pixels(_state->dirty, _state->scale, _frame.size.height), [_borderView frame]);
    _state->dirty = NSZeroRect;
    if (NSIsEmptyRect(dirty)) return;
    // Transparent windows are small: they are cleared and drawn as a whole.
    if ([self isTransparent]) std::fill(_state->pixels.begin(), _state->pixels.end(), 0);
    cocoa::draw_tree(_borderView, _state->pixels.data(), _state->width, _state->height,
                     _state->scale, [self isTransparent] ? [_borderView frame] : dirty);
    WindowServer::shared().screen_needs_update();
}

- (void)setViewsNeedDisplay:(BOOL)flag {
    if (flag) [self addDirtyRect:[_borderView frame]];
}

- (void)flushWindow {
    WindowServer::shared().screen_needs_update();
}
@end
