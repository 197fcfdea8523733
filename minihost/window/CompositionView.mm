#include "minihost/window/CompositionView.h"

#include "minihost/preview/Painter.h"
#include "minihost/window/Picking.h"
#include "minihost/window/WindowStyle.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace minihost;

namespace {

constexpr double degrees_per_point = 0.4, min_band = 3, zoom_per_line = 1.12;
constexpr double points_per_key = 24, degrees_per_key = 6;

CGImageRef image_of(std::vector<unsigned char>& rgba, int width, int height) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGContextRef pixels = CGBitmapContextCreate(
        rgba.data(), static_cast<size_t>(width), static_cast<size_t>(height), 8,
        static_cast<size_t>(width) * 4, space, kCGImageAlphaPremultipliedLast);
    CGImageRef image = pixels ? CGBitmapContextCreateImage(pixels) : nullptr;
    CGContextRelease(pixels);
    CGColorSpaceRelease(space);
    return image;
}

} // namespace

// The picture that was painted last, and what it shows.
struct CompositionPicture {
    struct Key {
        std::uint64_t revision;
        Viewpoint viewpoint;
        double width, height, scale;
        bool operator==(const Key&) const = default;
    };
    std::optional<Key> key;
    preview::DrawList list;
    CGImageRef image = nullptr;

    CompositionPicture() = default;
    CompositionPicture(const CompositionPicture&) = delete;
    CompositionPicture& operator=(const CompositionPicture&) = delete;
    ~CompositionPicture() { CGImageRelease(image); }

    void paint(const SceneEditor& editor, const Key& wanted) {
        if (key == wanted) return;
        const preview::Framing framing =
            wanted.viewpoint.framing(editor.scene(), wanted.width, wanted.height, wanted.scale);
        list = preview::make_draw_list(editor.scene(), framing);
        std::vector<unsigned char> rgba =
            preview::paint_pixels(list.width, list.height, [this](preview::Canvas& canvas) {
                preview::paint(canvas, list);
            });
        CGImageRelease(image);
        image = image_of(rgba, list.width, list.height);
        key = wanted;
    }
};

@implementation CompositionView
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) _picture = new CompositionPicture();
    return self;
}
- (void)dealloc {
    delete _picture;
    [super dealloc];
}
- (void)setEditor:(SceneEditor*)editor {
    _editor = editor;
}
- (BOOL)isFlipped {
    return YES;
}
- (BOOL)acceptsFirstResponder {
    return YES;
}
- (BOOL)becomeFirstResponder {
    [self setNeedsDisplay:YES];
    return YES;
}
- (BOOL)resignFirstResponder {
    [self setNeedsDisplay:YES];
    return YES;
}
// Inside the view: outside it would be drawn over the neighbours.
- (NSRect)focusRingRect {
    return NSInsetRect([self bounds], 3, 3);
}

- (double)scale {
    return [[NSScreen mainScreen] backingScaleFactor];
}

- (BOOL)prepare {
    const NSRect bounds = [self bounds];
    if (!_editor || NSWidth(bounds) < 1 || NSHeight(bounds) < 1) return NO;
    _picture->paint(*_editor, {_editor->display_state().revision, _editor->viewpoint,
                               NSWidth(bounds), NSHeight(bounds), [self scale]});
    return _picture->image != nullptr;
}

// Drawing.

- (void)strokePolygon:(const std::vector<preview::Point>&)polygon in:(CGContextRef)context {
    const double scale = [self scale];
    bool first = true;
    for (const preview::Point& p : polygon) {
        if (first)
            CGContextMoveToPoint(context, p.x / scale, p.y / scale);
        else
            CGContextAddLineToPoint(context, p.x / scale, p.y / scale);
        first = false;
    }
    CGContextClosePath(context);
    CGContextStrokePath(context);
}

- (void)outlineSelected:(const std::vector<preview::DrawItem>&)items
                  alpha:(double)alpha
                     in:(CGContextRef)context {
    NSColor* color = [style::color(style::ColorRole::Highlight) colorWithAlphaComponent:alpha];
    [color setStroke];
    const double scale = [self scale];
    for (const preview::DrawItem& item : items) {
        if (!_editor->is_selected(item.id)) continue;
        if (item.is_mark()) {
            const double r = 12;
            const double x = item.mark.x / scale, y = item.mark.y / scale;
            CGContextStrokeEllipseInRect(context, CGRectMake(x - r, y - r, 2 * r, 2 * r));
            continue;
        }
        [self strokePolygon:item.polygon in:context];
    }
}

// Layers seen edge-on, in their colours.
- (void)drawEdgesIn:(CGContextRef)context {
    for (const preview::DrawItem& item : _picture->list.edges) {
        const preview::Rgba& c = item.color;
        CGContextSetRGBStrokeColor(context, c.r, c.g, c.b, 1);
        [self strokePolygon:item.polygon in:context];
    }
}

// Darkens what is outside the camera's frame.
- (void)drawFrame {
    const Composition& composition = _editor->scene().composition;
    const double m = _editor->viewpoint.magnification(_editor->scene(), NSWidth([self bounds]),
                                                      NSHeight([self bounds]));
    const preview::Camera& camera = _picture->list.camera;
    const NSRect all = [self bounds];
    const NSRect frame = NSMakeRect(camera.shift.x * m, camera.shift.y * m, composition.width * m,
                                    composition.height * m);
    [[NSColor colorWithDeviceWhite:0 alpha:0.45] setFill];
    const double top = NSMinY(frame), bottom = NSMaxY(frame);
    for (const NSRect& rest :
         {NSMakeRect(0, 0, NSWidth(all), top),
          NSMakeRect(0, bottom, NSWidth(all), NSHeight(all) - bottom),
          NSMakeRect(0, top, NSMinX(frame), bottom - top),
          NSMakeRect(NSMaxX(frame), top, NSWidth(all) - NSMaxX(frame), bottom - top)})
        if (NSWidth(rest) > 0 && NSHeight(rest) > 0)
            NSRectFillUsingOperation(rest, NSCompositeSourceOver);
    [[NSColor colorWithDeviceWhite:1 alpha:0.35] setStroke];
    [NSBezierPath strokeRect:NSInsetRect(frame, -0.5, -0.5)];
}

- (void)drawTitle {
    const std::string title = _editor->viewpoint.title(_editor->scene());
    const double width = std::min(style::text_width(title), NSWidth([self bounds]) - 32) + 16;
    const NSRect pill = NSMakeRect(8, 8, std::ceil(width), 20);
    [[NSColor colorWithDeviceRed:0.07 green:0.08 blue:0.11 alpha:0.6] setFill];
    [[NSBezierPath bezierPathWithRoundedRect:pill xRadius:10 yRadius:10] fill];
    style::draw_text(title, NSInsetRect(pill, 8, 0), [NSColor colorWithDeviceWhite:0.92 alpha:1]);
}

- (void)drawBand {
    const NSRect band =
        NSMakeRect(std::min(_bandFrom.x, _bandTo.x), std::min(_bandFrom.y, _bandTo.y),
                   std::abs(_bandTo.x - _bandFrom.x), std::abs(_bandTo.y - _bandFrom.y));
    NSColor* color = style::color(style::ColorRole::Highlight);
    [[color colorWithAlphaComponent:0.15] setFill];
    NSRectFillUsingOperation(band, NSCompositeSourceOver);
    [color setStroke];
    [NSBezierPath strokeRect:NSInsetRect(band, 0.5, 0.5)];
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    if (![self prepare]) return;
    auto context = static_cast<CGContextRef>([[NSGraphicsContext currentContext] graphicsPort]);
    const double width = _picture->list.width / [self scale];
    const double height = _picture->list.height / [self scale];
    CGContextSaveGState(context);
    CGContextTranslateCTM(context, 0, height);
    CGContextScaleCTM(context, 1, -1);
    CGContextDrawImage(context, CGRectMake(0, 0, width, height), _picture->image);
    CGContextRestoreGState(context);
    if (_picture->key->viewpoint.kind() == ViewKind::Camera) [self drawFrame];
    CGContextSetLineJoin(context, kCGLineJoinRound);
    CGContextSetLineWidth(context, 2);
    [self drawEdgesIn:context];
    [self outlineSelected:_picture->list.edges alpha:0.95 in:context];
    CGContextSetLineWidth(context, 1.2);
    [self outlineSelected:_picture->list.hidden alpha:0.3 in:context];
    [self outlineSelected:_picture->list.items alpha:0.95 in:context];
    [self drawTitle];
    if (_hasBand) [self drawBand];
}

// Mouse.

- (NSEvent*)nextMatching:(NSUInteger)mask {
    return [NSApp nextEventMatchingMask:mask
                              untilDate:[NSDate distantFuture]
                                 inMode:NSEventTrackingRunLoopMode
                                dequeue:YES];
}
- (NSPoint)pointOf:(NSEvent*)event {
    return [self convertPoint:[event locationInWindow] fromView:nil];
}
- (preview::Point)pixel:(NSPoint)point {
    const double scale = [self scale];
    return {point.x * scale, point.y * scale};
}

- (void)dragBandKeeping:(const Selection&)kept {
    NSEvent* event = nil;
    while ((event = [self nextMatching:NSLeftMouseDraggedMask | NSLeftMouseUpMask]) &&
           [event type] == NSLeftMouseDragged) {
        _bandTo = [self pointOf:event];
        const double far =
            std::max(std::abs(_bandTo.x - _bandFrom.x), std::abs(_bandTo.y - _bandFrom.y));
        if (!_hasBand && far < min_band) continue;
        _hasBand = YES;
        _editor->select(
            layers_touched(_picture->list, [self pixel:_bandFrom], [self pixel:_bandTo]), kept);
        [self setNeedsDisplay:YES];
    }
    if (_hasBand) [self setNeedsDisplay:YES];
    _hasBand = NO;
}

- (void)mouseDown:(NSEvent*)event {
    if (![self prepare]) return;
    const NSUInteger adding = NSShiftKeyMask | NSControlKeyMask | NSCommandKeyMask;
    const BOOL adds = ([event modifierFlags] & adding) != 0;
    const Selection before = _editor->scene().selection();
    _bandFrom = [self pointOf:event];
    const LayerId hit = layer_at(_picture->list, [self pixel:_bandFrom]);
    if (hit && adds)
        _editor->toggle(hit);
    else if (hit)
        _editor->select({hit});
    else if (!adds)
        _editor->select({});
    [self dragBandKeeping:adds ? before : Selection{}];
}

- (void)rightMouseDown:(NSEvent*)event {
    if (!_editor) return;
    NSPoint last = [self pointOf:event];
    while ((event = [self nextMatching:NSRightMouseDraggedMask | NSRightMouseUpMask]) &&
           [event type] == NSRightMouseDragged) {
        const NSPoint now = [self pointOf:event];
        const double dx = now.x - last.x, dy = now.y - last.y;
        last = now;
        if (_editor->viewpoint.kind() == ViewKind::Custom &&
            !([event modifierFlags] & NSShiftKeyMask))
            _editor->viewpoint.orbit(dx * degrees_per_point, dy * degrees_per_point);
        else
            _editor->viewpoint.pan(dx, dy);
        [self setNeedsDisplay:YES];
    }
}

- (void)scrollWheel:(NSEvent*)event {
    const NSPoint at = [self pointOf:event];
    _editor->viewpoint.zoom(
        std::pow(zoom_per_line, [event deltaY]),
        {at.x - NSWidth([self bounds]) / 2, at.y - NSHeight([self bounds]) / 2});
    [self setNeedsDisplay:YES];
}

// Keys.

- (BOOL)moveBy:(NSPoint)step {
    if (_editor->viewpoint.kind() == ViewKind::Custom)
        _editor->viewpoint.orbit(step.x * degrees_per_key, step.y * degrees_per_key);
    else
        _editor->viewpoint.pan(-step.x * points_per_key, -step.y * points_per_key);
    return YES;
}

- (BOOL)handleKey:(unichar)key {
    switch (key) {
    case NSLeftArrowFunctionKey:
        return [self moveBy:NSMakePoint(-1, 0)];
    case NSRightArrowFunctionKey:
        return [self moveBy:NSMakePoint(1, 0)];
    case NSUpArrowFunctionKey:
        return [self moveBy:NSMakePoint(0, -1)];
    case NSDownArrowFunctionKey:
        return [self moveBy:NSMakePoint(0, 1)];
    case '+':
    case '=':
        _editor->viewpoint.zoom(zoom_per_line * zoom_per_line);
        return YES;
    case '-':
        _editor->viewpoint.zoom(1 / (zoom_per_line * zoom_per_line));
        return YES;
    case '0':
        _editor->viewpoint.reset();
        return YES;
    default:
        return NO;
    }
}

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    if (_editor && [self handleKey:key])
        [self setNeedsDisplay:YES];
    else
        [super keyDown:event];
}
@end
