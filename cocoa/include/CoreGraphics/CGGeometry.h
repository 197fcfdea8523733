// Points, sizes, rectangles. The functions read a rectangle of negative width or height as the one
// with the same corners and positive sides, except where they say otherwise.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} CGPoint;

typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

CG_EXTERN const CGPoint CGPointZero;
CG_EXTERN const CGSize CGSizeZero;
CG_EXTERN const CGRect CGRectZero;
// What an intersection that is not there is: at infinity, with sides 0.
CG_EXTERN const CGRect CGRectNull;

CG_INLINE CGPoint CGPointMake(CGFloat x, CGFloat y) {
    CGPoint point = {x, y};
    return point;
}
CG_INLINE CGSize CGSizeMake(CGFloat width, CGFloat height) {
    CGSize size = {width, height};
    return size;
}
CG_INLINE CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect rect = {{x, y}, {width, height}};
    return rect;
}

CG_EXTERN bool CGPointEqualToPoint(CGPoint a, CGPoint b);
CG_EXTERN bool CGSizeEqualToSize(CGSize a, CGSize b);
CG_EXTERN bool CGRectEqualToRect(CGRect a, CGRect b);

CG_EXTERN CGRect CGRectStandardize(CGRect rect);
CG_EXTERN CGFloat CGRectGetMinX(CGRect rect);
CG_EXTERN CGFloat CGRectGetMidX(CGRect rect);
CG_EXTERN CGFloat CGRectGetMaxX(CGRect rect);
CG_EXTERN CGFloat CGRectGetMinY(CGRect rect);
CG_EXTERN CGFloat CGRectGetMidY(CGRect rect);
CG_EXTERN CGFloat CGRectGetMaxY(CGRect rect);
CG_EXTERN CGFloat CGRectGetWidth(CGRect rect);
CG_EXTERN CGFloat CGRectGetHeight(CGRect rect);

// Empty: a side is 0, or it is the null rectangle.
CG_EXTERN bool CGRectIsEmpty(CGRect rect);
CG_EXTERN bool CGRectIsNull(CGRect rect);

// Null when the inset leaves a negative side.
CG_EXTERN CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
CG_EXTERN CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
// The smallest rectangle of whole numbers around it.
CG_EXTERN CGRect CGRectIntegral(CGRect rect);
CG_EXTERN CGRect CGRectUnion(CGRect a, CGRect b);
// Null when they have no area in common.
CG_EXTERN CGRect CGRectIntersection(CGRect a, CGRect b);
CG_EXTERN bool CGRectIntersectsRect(CGRect a, CGRect b);
// Half-open: the edges of smaller x and y belong to it, the others do not.
CG_EXTERN bool CGRectContainsPoint(CGRect rect, CGPoint point);
CG_EXTERN bool CGRectContainsRect(CGRect outer, CGRect inner);
