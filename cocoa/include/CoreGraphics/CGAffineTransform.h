// Affine transforms of the plane. A point is a row [x y 1] and is multiplied from the left:
// x' = a x + c y + tx, y' = b x + d y + ty. Angles are radians, from the x axis to the y axis.
#pragma once

#include <CoreGraphics/CGGeometry.h>

typedef struct CGAffineTransform {
    CGFloat a, b, c, d;
    CGFloat tx, ty;
} CGAffineTransform;

CG_EXTERN const CGAffineTransform CGAffineTransformIdentity;

CG_EXTERN CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d,
                                                  CGFloat tx, CGFloat ty);
CG_EXTERN CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty);
CG_EXTERN CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy);
CG_EXTERN CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle);

// The new transform comes first, the given one after it: translating a scaled system moves by
// scaled units.
CG_EXTERN CGAffineTransform CGAffineTransformTranslate(CGAffineTransform t, CGFloat tx, CGFloat ty);
CG_EXTERN CGAffineTransform CGAffineTransformScale(CGAffineTransform t, CGFloat sx, CGFloat sy);
CG_EXTERN CGAffineTransform CGAffineTransformRotate(CGAffineTransform t, CGFloat angle);
// t1 first, then t2.
CG_EXTERN CGAffineTransform CGAffineTransformConcat(CGAffineTransform t1, CGAffineTransform t2);
// A transform that cannot be inverted is returned as it is.
CG_EXTERN CGAffineTransform CGAffineTransformInvert(CGAffineTransform t);
CG_EXTERN bool CGAffineTransformIsIdentity(CGAffineTransform t);
CG_EXTERN bool CGAffineTransformEqualToTransform(CGAffineTransform t1, CGAffineTransform t2);

CG_EXTERN CGPoint CGPointApplyAffineTransform(CGPoint point, CGAffineTransform t);
CG_EXTERN CGSize CGSizeApplyAffineTransform(CGSize size, CGAffineTransform t);
// The smallest upright rectangle around the transformed corners.
CG_EXTERN CGRect CGRectApplyAffineTransform(CGRect rect, CGAffineTransform t);
