// Points, sizes, rectangles.
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

CG_INLINE CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect rect = {{x, y}, {width, height}};
    return rect;
}
// The rectangle of the same corners whose sides are not negative.
CG_EXTERN CGRect CGRectStandardize(CGRect rect);
