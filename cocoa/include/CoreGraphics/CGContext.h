// Where drawing goes, and how. The origin of a new context is its lower left corner, y points up,
// and one unit is one pixel. Every function does nothing when the context is NULL.
//
// With antialiasing (at the start it is on) a pixel takes the part of a shape that covers it.
// Without, a pixel is drawn when its centre lies in the shape; a centre just on an edge belongs to
// the shape on the right of it and below it, as the picture is seen. So a line of width 1 along
// whole coordinates takes the pixels to the left of them, or above them: that from (0, 20) to (9,
// 20) in flipped coordinates takes row 19, that from (20, 0) to (20, 9) takes column 19.
//
// Colours are not premultiplied, from 0 to 1, and are clamped to that. Drawing with a transform
// that cannot be inverted draws nothing, coordinates that are not finite are taken as 0, and those
// millions of pixels away are brought nearer.
#pragma once

#include <CoreGraphics/CGAffineTransform.h>
#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGGradient.h>
#include <CoreGraphics/CGImage.h>

typedef struct CGContext* CGContextRef;

typedef int32_t CGLineCap;
enum { kCGLineCapButt, kCGLineCapRound, kCGLineCapSquare };

typedef int32_t CGLineJoin;
enum { kCGLineJoinMiter, kCGLineJoinRound, kCGLineJoinBevel };

typedef int32_t CGPathDrawingMode;
enum { kCGPathFill, kCGPathEOFill, kCGPathStroke, kCGPathFillStroke, kCGPathEOFillStroke };

// Over what is there, instead of what is there, or clearing it.
typedef int32_t CGBlendMode;
enum { kCGBlendModeNormal = 0, kCGBlendModeClear = 16, kCGBlendModeCopy = 17 };

CG_EXTERN CGContextRef CGContextRetain(CGContextRef context);
CG_EXTERN void CGContextRelease(CGContextRef context);

// The graphics state: transform, clip, colours, line, antialiasing, alpha, blend mode; not the
// path. A restore without a save does nothing.
CG_EXTERN void CGContextSaveGState(CGContextRef context);
CG_EXTERN void CGContextRestoreGState(CGContextRef context);

CG_EXTERN void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy);
CG_EXTERN void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty);
CG_EXTERN void CGContextRotateCTM(CGContextRef context, CGFloat angle);
// The transform is applied to coordinates before the one that is there.
CG_EXTERN void CGContextConcatCTM(CGContextRef context, CGAffineTransform transform);
// The identity for a new context.
CG_EXTERN CGAffineTransform CGContextGetCTM(CGContextRef context);

CG_EXTERN void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green,
                                        CGFloat blue, CGFloat alpha);
CG_EXTERN void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green,
                                          CGFloat blue, CGFloat alpha);
CG_EXTERN void CGContextSetGrayFillColor(CGContextRef context, CGFloat gray, CGFloat alpha);
CG_EXTERN void CGContextSetGrayStrokeColor(CGContextRef context, CGFloat gray, CGFloat alpha);
// Multiplies the alpha of everything that is drawn.
CG_EXTERN void CGContextSetAlpha(CGContextRef context, CGFloat alpha);
CG_EXTERN void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode);
CG_EXTERN void CGContextSetShouldAntialias(CGContextRef context, bool shouldAntialias);

// In user space; 1 at the start. A width that is not above 0 changes nothing.
CG_EXTERN void CGContextSetLineWidth(CGContextRef context, CGFloat width);
CG_EXTERN void CGContextSetLineCap(CGContextRef context, CGLineCap cap);
CG_EXTERN void CGContextSetLineJoin(CGContextRef context, CGLineJoin join);
CG_EXTERN void CGContextSetMiterLimit(CGContextRef context, CGFloat limit);
// No lengths, a negative one, or lengths that are invisibly small together make lines solid.
CG_EXTERN void CGContextSetLineDash(CGContextRef context, CGFloat phase, const CGFloat* lengths,
                                    size_t count);

// The path. Points are transformed when they are added. A line, curve or close without a current
// point adds nothing.
CG_EXTERN void CGContextBeginPath(CGContextRef context);
CG_EXTERN void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y);
CG_EXTERN void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y);
CG_EXTERN void CGContextAddCurveToPoint(CGContextRef context, CGFloat cp1x, CGFloat cp1y,
                                        CGFloat cp2x, CGFloat cp2y, CGFloat x, CGFloat y);
CG_EXTERN void CGContextClosePath(CGContextRef context);
CG_EXTERN void CGContextAddRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextAddEllipseInRect(CGContextRef context, CGRect rect);
// From startAngle to endAngle, in radians, against the clock (as y points up) or with it; a line
// leads to its start from the current point, if there is one. At most one full turn.
CG_EXTERN void CGContextAddArc(CGContextRef context, CGFloat x, CGFloat y, CGFloat radius,
                               CGFloat startAngle, CGFloat endAngle, int clockwise);

// Draw the path and clear it. Filling closes open parts.
CG_EXTERN void CGContextFillPath(CGContextRef context);
CG_EXTERN void CGContextEOFillPath(CGContextRef context);
CG_EXTERN void CGContextStrokePath(CGContextRef context);
CG_EXTERN void CGContextDrawPath(CGContextRef context, CGPathDrawingMode mode);

// These clear the path too.
CG_EXTERN void CGContextFillRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextFillEllipseInRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextStrokeRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextStrokeRectWithWidth(CGContextRef context, CGRect rect, CGFloat width);
CG_EXTERN void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect);
// To transparent black, whatever alpha and blend mode say.
CG_EXTERN void CGContextClearRect(CGContextRef context, CGRect rect);

// The clip becomes what it has in common with the path (which is cleared) or the rectangle.
CG_EXTERN void CGContextClip(CGContextRef context);
CG_EXTERN void CGContextEOClip(CGContextRef context);
CG_EXTERN void CGContextClipToRect(CGContextRef context, CGRect rect);
// In user space; the null rectangle when nothing is left.
CG_EXTERN CGRect CGContextGetClipBoundingBox(CGContextRef context);

// The image fills the rectangle, its top row at the greater y: upright in a context whose y points
// up, mirrored in a flipped one. Without a change of size its pixels are copied as they are.
CG_EXTERN void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image);

// Colours change along the line from start to end and are the same across it; within the clip.
CG_EXTERN void CGContextDrawLinearGradient(CGContextRef context, CGGradientRef gradient,
                                           CGPoint start, CGPoint end,
                                           CGGradientDrawingOptions options);
