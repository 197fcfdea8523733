#include <CoreGraphics/CGAffineTransform.h>

#include <algorithm>
#include <cmath>

const CGAffineTransform CGAffineTransformIdentity = {1, 0, 0, 1, 0, 0};

CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx,
                                        CGFloat ty) {
    return {a, b, c, d, tx, ty};
}

CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty) {
    return {1, 0, 0, 1, tx, ty};
}

CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy) {
    return {sx, 0, 0, sy, 0, 0};
}

CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle) {
    const CGFloat s = std::sin(angle), c = std::cos(angle);
    return {c, s, -s, c, 0, 0};
}

CGAffineTransform CGAffineTransformConcat(CGAffineTransform t1, CGAffineTransform t2) {
    return {t1.a * t2.a + t1.b * t2.c,           t1.a * t2.b + t1.b * t2.d,
            t1.c * t2.a + t1.d * t2.c,           t1.c * t2.b + t1.d * t2.d,
            t1.tx * t2.a + t1.ty * t2.c + t2.tx, t1.tx * t2.b + t1.ty * t2.d + t2.ty};
}

CGAffineTransform CGAffineTransformTranslate(CGAffineTransform t, CGFloat tx, CGFloat ty) {
    return CGAffineTransformConcat(CGAffineTransformMakeTranslation(tx, ty), t);
}

CGAffineTransform CGAffineTransformScale(CGAffineTransform t, CGFloat sx, CGFloat sy) {
    return CGAffineTransformConcat(CGAffineTransformMakeScale(sx, sy), t);
}

CGAffineTransform CGAffineTransformRotate(CGAffineTransform t, CGFloat angle) {
    return CGAffineTransformConcat(CGAffineTransformMakeRotation(angle), t);
}

CGAffineTransform CGAffineTransformInvert(CGAffineTransform t) {
    const CGFloat determinant = t.a * t.d - t.b * t.c;
    if (determinant == 0 || !std::isfinite(determinant)) return t;
    const CGFloat a = t.d / determinant, b = -t.b / determinant;
    const CGFloat c = -t.c / determinant, d = t.a / determinant;
    return {a, b, c, d, -(t.tx * a + t.ty * c), -(t.tx * b + t.ty * d)};
}

bool CGAffineTransformEqualToTransform(CGAffineTransform s, CGAffineTransform t) {
    return s.a == t.a && s.b == t.b && s.c == t.c && s.d == t.d && s.tx == t.tx && s.ty == t.ty;
}

bool CGAffineTransformIsIdentity(CGAffineTransform t) {
    return CGAffineTransformEqualToTransform(t, CGAffineTransformIdentity);
}

CGPoint CGPointApplyAffineTransform(CGPoint p, CGAffineTransform t) {
    return {t.a * p.x + t.c * p.y + t.tx, t.b * p.x + t.d * p.y + t.ty};
}

CGSize CGSizeApplyAffineTransform(CGSize s, CGAffineTransform t) {
    return {t.a * s.width + t.c * s.height, t.b * s.width + t.d * s.height};
}

CGRect CGRectApplyAffineTransform(CGRect rect, CGAffineTransform t) {
    if (CGRectIsNull(rect)) return rect;
    const CGFloat xs[] = {CGRectGetMinX(rect), CGRectGetMaxX(rect)};
    const CGFloat ys[] = {CGRectGetMinY(rect), CGRectGetMaxY(rect)};
    CGPoint low = CGPointApplyAffineTransform({xs[0], ys[0]}, t), high = low;
    for (int corner = 1; corner < 4; ++corner) {
        const CGPoint p = CGPointApplyAffineTransform({xs[corner & 1], ys[corner >> 1]}, t);
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    return CGRectMake(low.x, low.y, high.x - low.x, high.y - low.y);
}
