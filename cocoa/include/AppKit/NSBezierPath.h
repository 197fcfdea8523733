// Paths of lines and curves, drawn into the current graphics context in its colours.
#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

typedef NSUInteger NSLineCapStyle;
enum { NSButtLineCapStyle, NSRoundLineCapStyle, NSSquareLineCapStyle };

typedef NSUInteger NSLineJoinStyle;
enum { NSMiterLineJoinStyle, NSRoundLineJoinStyle, NSBevelLineJoinStyle };

typedef NSUInteger NSWindingRule;
enum { NSNonZeroWindingRule, NSEvenOddWindingRule };

typedef NSUInteger NSBezierPathElement;
enum {
    NSMoveToBezierPathElement,
    NSLineToBezierPathElement,
    NSCurveToBezierPathElement,
    NSClosePathBezierPathElement
};

struct NSPathElements;

@interface NSBezierPath : NSObject <NSCopying> {
    struct NSPathElements* _elements;
    CGFloat _lineWidth, _miterLimit;
    NSLineCapStyle _cap;
    NSLineJoinStyle _join;
    NSWindingRule _rule;
}
+ (NSBezierPath*)bezierPath;
+ (NSBezierPath*)bezierPathWithRect:(NSRect)rect;
+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect;
// The radii are at most half of the sides.
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius;

+ (void)fillRect:(NSRect)rect;
+ (void)strokeRect:(NSRect)rect;
+ (void)clipRect:(NSRect)rect;
+ (void)strokeLineFromPoint:(NSPoint)from toPoint:(NSPoint)to;

- (void)moveToPoint:(NSPoint)point;
// These raise NSGenericException when there is no current point.
- (void)lineToPoint:(NSPoint)point;
- (void)curveToPoint:(NSPoint)end controlPoint1:(NSPoint)control1 controlPoint2:(NSPoint)control2;
// Back to where the part began, which is the current point then; nothing in an empty path.
- (void)closePath;
- (void)removeAllPoints;
- (void)appendBezierPath:(NSBezierPath*)path;
- (void)appendBezierPathWithRect:(NSRect)rect;
- (void)appendBezierPathWithOvalInRect:(NSRect)rect;
- (void)appendBezierPathWithRoundedRect:(NSRect)rect
                                xRadius:(CGFloat)xRadius
                                yRadius:(CGFloat)yRadius;
// Angles in degrees, from the x axis towards the y axis; a line leads to the start from the current
// point, if there is one.
- (void)appendBezierPathWithArcWithCenter:(NSPoint)center
                                   radius:(CGFloat)radius
                               startAngle:(CGFloat)start
                                 endAngle:(CGFloat)end
                                clockwise:(BOOL)clockwise;
- (void)appendBezierPathWithArcWithCenter:(NSPoint)center
                                   radius:(CGFloat)radius
                               startAngle:(CGFloat)start
                                 endAngle:(CGFloat)end;

- (BOOL)isEmpty;
- (NSInteger)elementCount;
// Fills in one point, or the three of a curve; none for a close.
- (NSBezierPathElement)elementAtIndex:(NSInteger)index associatedPoints:(NSPoint*)points;
// Raises NSGenericException in an empty path.
- (NSPoint)currentPoint;
// Around all points, those that only control curves among them; zero for an empty path.
- (NSRect)controlPointBounds;

// 1 at the start. 0 is the thinnest line that there is: a pixel wide.
- (CGFloat)lineWidth;
- (void)setLineWidth:(CGFloat)width;
- (void)setLineCapStyle:(NSLineCapStyle)style;
- (void)setLineJoinStyle:(NSLineJoinStyle)style;
- (void)setMiterLimit:(CGFloat)limit;
- (void)setLineDash:(const CGFloat*)pattern count:(NSInteger)count phase:(CGFloat)phase;
- (void)setWindingRule:(NSWindingRule)rule;

- (void)stroke;
- (void)fill;
// The current context's clip becomes what it has in common with the path.
- (void)addClip;
@end
