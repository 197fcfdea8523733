#include <AppKit/NSBezierPath.h>

#include <AppKit/NSGraphicsContext.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

struct Element {
    enum Type { Move, Line, Curve, Close } type;
    NSPoint points[3]; // a curve has all three, the end last; a close has none
    int count() const { return type == Curve ? 3 : type == Close ? 0 : 1; }
};

CGContextRef current_context() {
    return [[NSGraphicsContext currentContext] CGContext];
}

// The distance of the control points of a quarter circle from its ends, for a radius of 1.
constexpr CGFloat quarter_handle = 0.5522847498307936;

} // namespace

struct NSPathElements {
    std::vector<Element> all;

    // Makes it the context's path.
    void copy_to(CGContextRef context) const {
        CGContextBeginPath(context);
        for (const auto& [type, p] : all) {
            switch (type) {
            case Element::Move:
                CGContextMoveToPoint(context, p[0].x, p[0].y);
                break;
            case Element::Line:
                CGContextAddLineToPoint(context, p[0].x, p[0].y);
                break;
            case Element::Curve:
                CGContextAddCurveToPoint(context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                break;
            case Element::Close:
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
    [path moveToPoint:rect.origin];
    [path lineToPoint:NSMakePoint(NSMaxX(rect), NSMinY(rect))];
    [path lineToPoint:NSMakePoint(NSMaxX(rect), NSMaxY(rect))];
    [path lineToPoint:NSMakePoint(NSMinX(rect), NSMaxY(rect))];
    [path closePath];
    return path;
}

+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect {
    return [self bezierPathWithRoundedRect:rect
                                   xRadius:NSWidth(rect) / 2
                                   yRadius:NSHeight(rect) / 2];
}

+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius {
    rect = CGRectStandardize(rect);
    const CGFloat rx = std::min(std::abs(xRadius), NSWidth(rect) / 2);
    const CGFloat ry = std::min(std::abs(yRadius), NSHeight(rect) / 2);
    if (!(rx > 0 && ry > 0)) return [self bezierPathWithRect:rect];
    // Counterclockwise from the upper right: each corner, and the directions from there back to the
    // corner before it and on to the next.
    struct Corner {
        NSPoint at, back, on;
    };
    const Corner corners[] = {{{NSMaxX(rect), NSMaxY(rect)}, {0, -1}, {-1, 0}},
                              {{NSMinX(rect), NSMaxY(rect)}, {1, 0}, {0, -1}},
                              {{NSMinX(rect), NSMinY(rect)}, {0, 1}, {1, 0}},
                              {{NSMaxX(rect), NSMinY(rect)}, {-1, 0}, {0, 1}}};
    NSBezierPath* path = [self bezierPath];
    std::vector<Element>& elements = path->_elements->all;
    for (const Corner& corner : corners) {
        const auto beside = [&](NSPoint way, CGFloat part) {
            return NSMakePoint(corner.at.x + way.x * rx * part, corner.at.y + way.y * ry * part);
        };
        const NSPoint begin = beside(corner.back, 1);
        if (elements.empty())
            [path moveToPoint:begin];
        else if (!NSEqualPoints(begin, elements.back().points[2]))
            [path lineToPoint:begin];
        elements.push_back({Element::Curve,
                            {beside(corner.back, 1 - quarter_handle),
                             beside(corner.on, 1 - quarter_handle), beside(corner.on, 1)}});
    }
    [path closePath];
    return path;
}

+ (void)strokeRect:(NSRect)rect {
    [[self bezierPathWithRect:rect] stroke];
}

- (id)init {
    self = [super init];
    if (!self) return nil;
    _elements = new NSPathElements;
    _lineWidth = 1;
    return self;
}

- (void)dealloc {
    delete _elements;
    [super dealloc];
}

- (void)moveToPoint:(NSPoint)point {
    _elements->all.push_back({Element::Move, {point}});
}

- (void)lineToPoint:(NSPoint)point {
    if ([self isEmpty])
        [NSException raise:NSGenericException format:@"the path has no current point"];
    _elements->all.push_back({Element::Line, {point}});
}

- (void)closePath {
    if (![self isEmpty]) _elements->all.push_back({Element::Close, {}});
}

- (BOOL)isEmpty {
    return _elements->all.empty();
}

- (NSRect)controlPointBounds {
    NSPoint low = {INFINITY, INFINITY}, high = {-INFINITY, -INFINITY};
    for (const Element& element : _elements->all) {
        for (int i = 0; i < element.count(); ++i) {
            const NSPoint p = element.points[i];
            low = {std::min(low.x, p.x), std::min(low.y, p.y)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y)};
        }
    }
    return low.x > high.x ? NSZeroRect : NSMakeRect(low.x, low.y, high.x - low.x, high.y - low.y);
}

- (void)setLineWidth:(CGFloat)width {
    _lineWidth = width;
}

- (void)stroke {
    CGContextRef context = current_context();
    CGContextSaveGState(context);
    CGContextSetLineWidth(context, _lineWidth);
    CGContextSetLineJoin(context, kCGLineJoinMiter);
    _elements->copy_to(context);
    CGContextStrokePath(context);
    CGContextRestoreGState(context);
}

- (void)fill {
    _elements->copy_to(current_context());
    CGContextFillPath(current_context());
}

- (void)addClip {
    _elements->copy_to(current_context());
    CGContextClip(current_context());
}

@end
