// How a tree of views is drawn: each after its superview, clipped to its bounds, in its own
// coordinates; and drawing outside the display cycle, with the focus locked.
#include "NSViewPrivate.h"
#include "NSWindowPrivate.h"
#include "Theme.h"

#include <AppKit/AppKit.h>

#include <cmath>
#include <utility>

namespace cocoa {

namespace {

// Makes a graphics context current while it lives.
class CurrentContext {
  public:
    CurrentContext(CGContextRef port, BOOL flipped)
        : _previous([[NSGraphicsContext currentContext] retain]) {
        [NSGraphicsContext
            setCurrentContext:[NSGraphicsContext graphicsContextWithGraphicsPort:port
                                                                         flipped:flipped]];
    }
    ~CurrentContext() {
        [NSGraphicsContext setCurrentContext:_previous];
        [_previous release];
    }
    CurrentContext(const CurrentContext&) = delete;
    CurrentContext& operator=(const CurrentContext&) = delete;

  private:
    NSGraphicsContext* _previous;
};

CGContextRef make_context(unsigned char* pixels, int width, int height, double scale) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGContextRef context = CGBitmapContextCreate(
        pixels, static_cast<size_t>(width), static_cast<size_t>(height), 8,
        static_cast<size_t>(width) * 4, space, kCGImageAlphaPremultipliedLast);
    CGColorSpaceRelease(space);
    if (!context) return nullptr;
    // Points start at the top row: the part of a pixel that is left over is at the bottom.
    CGContextTranslateCTM(context, 0, height);
    CGContextScaleCTM(context, scale, scale);
    return context;
}

// Sets up a view's coordinates on top of its superview's.
void enter(CGContextRef context, NSView* view, bool turned) {
    const NSRect frame = [view frame];
    CGContextTranslateCTM(context, frame.origin.x, frame.origin.y);
    if (turned) {
        CGContextTranslateCTM(context, 0, frame.size.height);
        CGContextScaleCTM(context, 1, -1);
    }
}

// A locked focus.
struct Focus {
    CGContextRef port;
    NSGraphicsContext* previous;
    NSWindow* window;
};
std::vector<Focus>& focuses() {
    static std::vector<Focus> stack; // innermost last
    return stack;
}

void draw_focus_ring(NSRect rect) {
    NSBezierPath* path = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(rect, -1, -1)
                                                         xRadius:2.5
                                                         yRadius:2.5];
    [path setLineWidth:theme::ring_width];
    [theme::accent() setStroke];
    [path stroke];
}

} // namespace

void draw_tree(NSView* root, unsigned char* pixels, int width, int height, double scale,
               NSRect dirty) {
    if (width <= 0 || height <= 0) return;
    CGContextRef context = make_context(pixels, width, height, scale);
    if (!context) return;
    // Around the root y goes up; the picture begins at its upper left corner.
    CGContextTranslateCTM(context, -NSMinX([root frame]), -NSMaxY([root frame]));
    CGContextClipToRect(context, NSRectToCGRect(dirty));
    [root drawTreeInContext:context flipped:NO dirty:dirty];
    NSView* focus = [[root window] focusView];
    if (focus && [focus isDescendantOf:root] && ![focus isHiddenOrHasHiddenAncestor]) {
        NSView* clip = [focus superview];
        const NSRect ring = [focus focusRingRect];
        if (clip && !NSIsEmptyRect(ring)) {
            CurrentContext current(context, NO);
            CGContextClipToRect(context, NSRectToCGRect([clip baseRect:[clip visibleRect]]));
            draw_focus_ring([focus baseRect:ring]);
        }
    }
    CGContextRelease(context);
}

} // namespace cocoa

@implementation NSView (NSViewDrawing)

- (void)setNeedsDisplay:(BOOL)flag {
    if (flag) [self setNeedsDisplayInRect:[self bounds]];
}

- (void)setNeedsDisplayInRect:(NSRect)rect {
    if (!_window || [self isHiddenOrHasHiddenAncestor]) return;
    // With the focus ring, which is around the view.
    [_window addDirtyRect:NSInsetRect([self baseRect:rect], -cocoa::theme::ring_width,
                                      -cocoa::theme::ring_width)];
}

- (void)display {
    [self setNeedsDisplay:YES];
    [_window displayIfNeeded];
}
// For subclasses.
- (void)drawRect:(NSRect)__attribute__((unused))dirty {
}

- (void)drawTreeInContext:(CGContextRef)context flipped:(BOOL)superviewFlipped dirty:(NSRect)dirty {
    if (_hidden) return;
    const NSRect outside = NSIntersectionRect(dirty, _frame);
    if (NSIsEmptyRect(outside)) return;
    const BOOL flipped = [self isFlipped];
    const bool turned = flipped != superviewFlipped;
    NSRect inside = NSOffsetRect(outside, -_frame.origin.x, -_frame.origin.y);
    if (turned) inside.origin.y = NSMaxY(_frame) - NSMaxY(outside);
    CGContextSaveGState(context);
    cocoa::enter(context, self, turned);
    CGContextClipToRect(context, NSRectToCGRect(inside));
    {
        cocoa::CurrentContext current(context, flipped);
        CGContextSaveGState(context);
        [self drawRect:inside];
        CGContextRestoreGState(context);
    }
    NSArray* subviews = [[NSArray alloc] initWithArray:_subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i)
        [[subviews objectAtIndex:i] drawTreeInContext:context flipped:flipped dirty:inside];
    [subviews release];
    CGContextRestoreGState(context);
}

- (void)lockFocus {
    if (!_window)
        [NSException raise:NSInternalInconsistencyException
                    format:@"the focus cannot be locked on a view without a window"];
    [_window prepareState];
    NSWindowState* state = [_window state];
    cocoa::Focus focus;
    focus.previous = [[NSGraphicsContext currentContext] retain];
    focus.window = [_window retain];
    focus.port =
        cocoa::make_context(state->pixels.data(), state->width, state->height, state->scale);
    if (focus.port) {
        CGContextTranslateCTM(focus.port, 0, -[_window frame].size.height);
        CGContextClipToRect(focus.port, NSRectToCGRect([self baseRect:[self visibleRect]]));
        std::vector<NSView*> path;
        for (NSView* view = self; view; view = view->_superview) path.push_back(view);
        BOOL outside = NO;
        for (auto view = path.rbegin(); view != path.rend(); ++view) {
            cocoa::enter(focus.port, *view, [*view isFlipped] != outside);
            outside = [*view isFlipped];
        }
    }
    cocoa::focuses().push_back(focus);
    [NSGraphicsContext
        setCurrentContext:focus.port
                              ? [NSGraphicsContext graphicsContextWithGraphicsPort:focus.port
                                                                           flipped:[self isFlipped]]
                              : nil];
}

- (void)unlockFocus {
    if (cocoa::focuses().empty()) return;
    cocoa::Focus focus = cocoa::focuses().back();
    cocoa::focuses().pop_back();
    [NSGraphicsContext setCurrentContext:focus.previous];
    [focus.previous release];
    if (focus.port) CGContextRelease(focus.port);
    [focus.window flushWindow];
    [focus.window release];
}

- (NSRect)focusRingRect {
    return [self bounds];
}
@end
