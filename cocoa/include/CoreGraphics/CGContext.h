// Where drawing goes, and how. The origin of a new context is its lower left corner, y points up,
// and one unit is one pixel. Every function does nothing when the context is NULL.
//
// With antialiasing (on at first) a pixel is covered in part. Without, a pixel is drawn when its
// centre lies in the shape; a centre exactly on an edge belongs to the shape on the right of it and
// below it, as the picture is seen. So a line of width 1 along whole coordinates takes the pixels
// to the left of them, or above them: from (0, 20) to (9, 20) in flipped coordinates it takes row
// 19, from (20, 0) to (20, 9) column 19.
//
// Colours are not premultiplied, from 0 to 1, and are clamped to that. Nothing is drawn while the
// transform cannot be inverted, coordinates that are not finite count as 0, and those millions of
// pixels away are brought nearer.
#pragma once

#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGGeometry.h>
#include <CoreGraphics/CGImage.h>

typedef struct CGContext* CGContextRef;

typedef int32_t CGLineJoin;
enum { kCGLineJoinMiter, kCGLineJoinRound };

typedef int32_t CGBlendMode;
enum { kCGBlendModeNormal = 0, kCGBlendModeClear = 16, kCGBlendModeCopy = 17 };

CG_EXTERN CGContextRef CGContextRetain(CGContextRef context);
CG_EXTERN void CGContextRelease(CGContextRef context);

// The graphics state: transform, clip, colours, line, antialiasing, blend mode; not the path. A
// restore without a save does nothing.
CG_EXTERN void CGContextSaveGState(CGContextRef context);
CG_EXTERN void CGContextRestoreGState(CGContextRef context);

// Coordinates are scaled or moved before the current transform applies.
CG_EXTERN void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy);
CG_EXTERN void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty);

CG_EXTERN void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green,
                                        CGFloat blue, CGFloat alpha);
CG_EXTERN void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green,
                                          CGFloat blue, CGFloat alpha);
CG_EXTERN void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode);
CG_EXTERN void CGContextSetShouldAntialias(CGContextRef context, bool shouldAntialias);

// In user space; 1 at first. A width that is not above 0 changes nothing.
CG_EXTERN void CGContextSetLineWidth(CGContextRef context, CGFloat width);
CG_EXTERN void CGContextSetLineJoin(CGContextRef context, CGLineJoin join);

// The path. Points are transformed when they are added. A line, curve or close without a current
// point adds nothing.
CG_EXTERN void CGContextBeginPath(CGContextRef context);
CG_EXTERN void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y);
CG_EXTERN void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y);
CG_EXTERN void CGContextAddCurveToPoint(CGContextRef context, CGFloat cp1x, CGFloat cp1y,
                                        CGFloat cp2x, CGFloat cp2y, CGFloat x, CGFloat y);
CG_EXTERN void CGContextClosePath(CGContextRef context);
CG_EXTERN void CGContextAddRect(CGContextRef context, CGRect rect);

// Draw the path and clear it. Filling, by the winding rule, closes open subpaths.
CG_EXTERN void CGContextFillPath(CGContextRef context);
CG_EXTERN void CGContextStrokePath(CGContextRef context);

// These clear the path too.
CG_EXTERN void CGContextFillRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextStrokeRect(CGContextRef context, CGRect rect);
CG_EXTERN void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect);
// To transparent black, whatever the blend mode.
CG_EXTERN void CGContextClearRect(CGContextRef context, CGRect rect);

// Intersect the clip with the path (which is cleared) or the rectangle.
CG_EXTERN void CGContextClip(CGContextRef context);
CG_EXTERN void CGContextClipToRect(CGContextRef context, CGRect rect);

// The image fills the rectangle, its top row at the greater y: upright in a context whose y points
// up, mirrored in a flipped one. At its own size its pixels are copied as they are.
CG_EXTERN void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image);
