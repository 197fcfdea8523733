#include <AppKit/NSBezierPath.h>

#include <AppKit/NSGraphicsContext.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

struct Element {
    NSBezierPathElement type;
    NSPoint points[3]; // one is used, or three by a curve; a close has where it leads
};

int points_in(NSBezierPathElement type) {
    return type == NSClosePathBezierPathElement ? 0 : type == NSCurveToBezierPathElement ? 3 : 1;
}

CGContextRef current_context() {
    return [[NSGraphicsContext currentContext] CGContext];
}

// How long a user space unit is, in pixels.
CGFloat scale_of(CGContextRef context) {
    const CGAffineTransform t = CGContextGetCTM(context);
    return std::sqrt(std::abs(t.a * t.d - t.b * t.c));
}

// Where the handles of a curve for a quarter of a circle are, as a part of the radius.
constexpr CGFloat quarter_handle = 0.5522847498307936;

} // namespace

struct NSPathElements {
    std::vector<Element> all;
    NSPoint start = NSZeroPoint; // of the part that is being made
    std::vector<CGFloat> dash;
    CGFloat phase = 0;

    void add(NSBezierPathElement type, NSPoint a, NSPoint b = NSZeroPoint,
             NSPoint c = NSZeroPoint) {
        all.push_back({type, {a, b, c}});
    }
    NSPoint current() const {
        const Element& last = all.back();
        return last.points[last.type == NSCurveToBezierPathElement ? 2 : 0];
    }
    void need_current_point() const {
        if (all.empty())
            [NSException raise:NSGenericException format:@"the path has no current point"];
    }
    // Makes it the context's path.
    void give_to(CGContextRef context) const {
        CGContextBeginPath(context);
        for (const auto& [type, p] : all) {
            switch (type) {
            case NSMoveToBezierPathElement:
                CGContextMoveToPoint(context, p[0].x, p[0].y);
                break;
            case NSLineToBezierPathElement:
                CGContextAddLineToPoint(context, p[0].x, p[0].y);
                break;
            case NSCurveToBezierPathElement:
                CGContextAddCurveToPoint(context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                break;
            default:
                CGContextClosePath(context);
            }
        }
    }
};

@implementation NSBezierPath

+ (NSBezierPath*)bezierPath {
    return [[[self alloc] init] autorelease];
}

+ (NSBezierPath*)bezierPathWithRect:(NSRect)rect {
    NSBezierPath* path = [self bezierPath];
    [path appendBezierPathWithRect:rect];
    return path;
}

+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect {
    NSBezierPath* path = [self bezierPath];
    [path appendBezierPathWithOvalInRect:rect];
    return path;
}

+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius {
    NSBezierPath* path = [self bezierPath];
    [path appendBezierPathWithRoundedRect:rect xRadius:xRadius yRadius:yRadius];
    return path;
}

+ (void)fillRect:(NSRect)rect {
    CGContextFillRect(current_context(), rect);
}

+ (void)strokeRect:(NSRect)rect {
    [[self bezierPathWithRect:rect] stroke];
}

+ (void)clipRect:(NSRect)rect {
    NSRectClip(rect);
}

+ (void)strokeLineFromPoint:(NSPoint)from toPoint:(NSPoint)to {
    NSBezierPath* path = [self bezierPath];
    [path moveToPoint:from];
    [path lineToPoint:to];
    [path stroke];
}

- (id)init {
    self = [super init];
    if (!self) return nil;
    _elements = new NSPathElements;
    _lineWidth = 1;
    _miterLimit = 10;
    return self;
}

- (void)dealloc {
    delete _elements;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
    NSBezierPath* copy = [[[self class] allocWithZone:zone] init];
    *copy->_elements = *_elements;
    copy->_lineWidth = _lineWidth;
    copy->_miterLimit = _miterLimit;
    copy->_cap = _cap;
    copy->_join = _join;
    copy->_rule = _rule;
    return copy;
}

- (void)moveToPoint:(NSPoint)point {
    _elements->start = point;
    _elements->add(NSMoveToBezierPathElement, point);
}

- (void)lineToPoint:(NSPoint)point {
    _elements->need_current_point();
    _elements->add(NSLineToBezierPathElement, point);
}

- (void)curveToPoint:(NSPoint)end controlPoint1:(NSPoint)control1 controlPoint2:(NSPoint)control2 {
    _elements->need_current_point();
    _elements->add(NSCurveToBezierPathElement, control1, control2, end);
}

- (void)closePath {
    if (!_elements->all.empty()) _elements->add(NSClosePathBezierPathElement, _elements->start);
}

- (void)removeAllPoints {
    _elements->all.clear();
}

- (void)appendBezierPath:(NSBezierPath*)path {
    if (!path) return;
    const std::vector<Element> added = path->_elements->all; // a copy, for it may be this path
    const NSPoint start = path->_elements->start;
    _elements->all.insert(_elements->all.end(), added.begin(), added.end());
    if (!added.empty()) _elements->start = start;
}

- (void)appendBezierPathWithRect:(NSRect)rect {
    [self moveToPoint:rect.origin];
    [self lineToPoint:NSMakePoint(NSMaxX(rect), NSMinY(rect))];
    [self lineToPoint:NSMakePoint(NSMaxX(rect), NSMaxY(rect))];
    [self lineToPoint:NSMakePoint(NSMinX(rect), NSMaxY(rect))];
    [self closePath];
}

- (void)appendBezierPathWithOvalInRect:(NSRect)rect {
    [self appendBezierPathWithRoundedRect:rect
                                  xRadius:NSWidth(rect) / 2
                                  yRadius:NSHeight(rect) / 2];
}

- (void)appendBezierPathWithRoundedRect:(NSRect)rect
                                xRadius:(CGFloat)xRadius
                                yRadius:(CGFloat)yRadius {
    rect = CGRectStandardize(rect);
    const CGFloat rx = std::min(std::abs(xRadius), NSWidth(rect) / 2);
    const CGFloat ry = std::min(std::abs(yRadius), NSHeight(rect) / 2);
    if (!(rx > 0 && ry > 0)) {
        [self appendBezierPathWithRect:rect];
        return;
    }
    // Against the clock from the lower right: each corner, and the way there and on from there.
    const struct {
        NSPoint corner, in, out;
    } corners[] = {{{NSMaxX(rect), NSMaxY(rect)}, {0, -1}, {-1, 0}},
                   {{NSMinX(rect), NSMaxY(rect)}, {1, 0}, {0, -1}},
                   {{NSMinX(rect), NSMinY(rect)}, {0, 1}, {1, 0}},
                   {{NSMaxX(rect), NSMinY(rect)}, {-1, 0}, {0, 1}}};
    bool first = true;
    for (const auto& [corner, in, out] : corners) {
        const auto beside = [&](NSPoint way, CGFloat part) {
            return NSMakePoint(corner.x + way.x * rx * part, corner.y + way.y * ry * part);
        };
        const NSPoint begin = beside(in, 1);
        if (first)
            [self moveToPoint:begin];
        else if (!NSEqualPoints(begin, [self currentPoint]))
            [self lineToPoint:begin];
        first = false;
        [self curveToPoint:beside(out, 1)
             controlPoint1:beside(in, 1 - quarter_handle)
             controlPoint2:beside(out, 1 - quarter_handle)];
    }
    [self closePath];
}

- (void)appendBezierPathWithArcWithCenter:(NSPoint)center
                                   radius:(CGFloat)radius
                               startAngle:(CGFloat)start
                                 endAngle:(CGFloat)end
                                clockwise:(BOOL)clockwise {
    if (!std::isfinite(start) || !std::isfinite(end)) return;
    CGFloat sweep = clockwise ? start - end : end - start;
    if (sweep < 0) sweep = std::fmod(sweep, 360.0) + 360;
    sweep = std::min(sweep, 360.0);
    const int parts = std::max(1, static_cast<int>(std::ceil(sweep / 90)));
    const CGFloat step = (clockwise ? -sweep : sweep) / parts * M_PI / 180;
    const CGFloat handle = 4.0 / 3 * std::tan(step / 4);
    const auto at = [&](CGFloat angle, CGFloat along) {
        return NSMakePoint(center.x + radius * (std::cos(angle) - along * std::sin(angle)),
                           center.y + radius * (std::sin(angle) + along * std::cos(angle)));
    };
    CGFloat from = std::fmod(start, 360.0) * M_PI / 180;
    if ([self isEmpty])
        [self moveToPoint:at(from, 0)];
    else
        [self lineToPoint:at(from, 0)];
    for (int i = 0; i < parts; ++i, from += step)
        [self curveToPoint:at(from + step, 0)
             controlPoint1:at(from, handle)
             controlPoint2:at(from + step, -handle)];
}

- (void)appendBezierPathWithArcWithCenter:(NSPoint)center
                                   radius:(CGFloat)radius
                               startAngle:(CGFloat)start
                                 endAngle:(CGFloat)end {
    [self appendBezierPathWithArcWithCenter:center
                                     radius:radius
                                 startAngle:start
                                   endAngle:end
                                  clockwise:NO];
}

- (BOOL)isEmpty {
    return _elements->all.empty();
}

- (NSInteger)elementCount {
    return _elements->all.size();
}

- (NSBezierPathElement)elementAtIndex:(NSInteger)index associatedPoints:(NSPoint*)points {
    if (index < 0 || index >= [self elementCount])
        [NSException raise:NSRangeException format:@"a path has no element %ld", index];
    const Element& element = _elements->all[index];
    if (points) std::copy_n(element.points, points_in(element.type), points);
    return element.type;
}

- (NSPoint)currentPoint {
    _elements->need_current_point();
    return _elements->current();
}

- (NSRect)controlPointBounds {
    NSPoint low = {INFINITY, INFINITY}, high = {-INFINITY, -INFINITY};
    for (const Element& element : _elements->all) {
        for (int i = 0; i < points_in(element.type); ++i) {
            const NSPoint p = element.points[i];
            low = {std::min(low.x, p.x), std::min(low.y, p.y)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y)};
        }
    }
    return low.x > high.x ? NSZeroRect : NSMakeRect(low.x, low.y, high.x - low.x, high.y - low.y);
}

- (CGFloat)lineWidth {
    return _lineWidth;
}

- (void)setLineWidth:(CGFloat)width {
    _lineWidth = width;
}

- (void)setLineCapStyle:(NSLineCapStyle)style {
    _cap = style;
}

- (void)setLineJoinStyle:(NSLineJoinStyle)style {
    _join = style;
}

- (void)setMiterLimit:(CGFloat)limit {
    _miterLimit = limit;
}

- (void)setLineDash:(const CGFloat*)pattern count:(NSInteger)count phase:(CGFloat)phase {
    _elements->dash.assign(pattern, pattern + (pattern ? count : 0));
    _elements->phase = phase;
}

- (void)setWindingRule:(NSWindingRule)rule {
    _rule = rule;
}

- (void)stroke {
    CGContextRef context = current_context();
    CGContextSaveGState(context);
    CGContextSetLineWidth(context, _lineWidth > 0 ? _lineWidth : 1 / scale_of(context));
    CGContextSetLineCap(context, static_cast<CGLineCap>(_cap));
    CGContextSetLineJoin(context, static_cast<CGLineJoin>(_join));
    CGContextSetMiterLimit(context, _miterLimit);
    CGContextSetLineDash(context, _elements->phase, _elements->dash.data(), _elements->dash.size());
    _elements->give_to(context);
    CGContextStrokePath(context);
    CGContextRestoreGState(context);
}

- (void)fill {
    CGContextRef context = current_context();
    _elements->give_to(context);
    CGContextDrawPath(context, _rule == NSEvenOddWindingRule ? kCGPathEOFill : kCGPathFill);
}

- (void)addClip {
    CGContextRef context = current_context();
    _elements->give_to(context);
    if (_rule == NSEvenOddWindingRule)
        CGContextEOClip(context);
    else
        CGContextClip(context);
}

@end
