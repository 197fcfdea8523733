#include <Foundation/NSGeometry.h>

#include <gtest/gtest.h>

static bool operator==(const NSRect& a, const NSRect& b) {
    return NSEqualRects(a, b);
}
static std::ostream& operator<<(std::ostream& out, const NSRect& r) {
    return out << '{' << r.origin.x << ", " << r.origin.y << ", " << r.size.width << ", "
               << r.size.height << '}';
}

namespace {

const NSRect square = NSMakeRect(10, 20, 30, 40); // to (40, 60)

TEST(Geometry, PointsOnEdgesBelongToTheSmallerSide) {
    const struct {
        NSPoint point;
        bool in, in_unflipped;
    } cases[] = {{{10, 20}, true, false},    {{10, 60}, false, true},     {{40, 30}, false, false},
                 {{39.999, 59}, true, true}, {{9.999, 30}, false, false}, {{25, 60}, false, true},
                 {{25, 20}, true, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(NSPointInRect(c.point, square), c.in) << c.point.x << ' ' << c.point.y;
        EXPECT_EQ(CGRectContainsPoint(square, c.point), c.in);
        EXPECT_EQ(NSMouseInRect(c.point, square, NO), c.in_unflipped);
    }
    EXPECT_FALSE(NSPointInRect(NSMakePoint(10, 20), NSMakeRect(10, 20, 0, 0)));
}

TEST(Geometry, UnionIntersectionAndContainment) {
    const NSRect touching = NSMakeRect(40, 20, 5, 5), far = NSMakeRect(100, 100, 1, 1);
    const NSRect overlapping = NSMakeRect(35, 50, 30, 30), empty = NSMakeRect(0, 0, 0, 9);
    EXPECT_EQ(NSIntersectionRect(square, overlapping), NSMakeRect(35, 50, 5, 10));
    EXPECT_EQ(NSIntersectionRect(square, touching), NSZeroRect);
    EXPECT_EQ(NSIntersectionRect(square, far), NSZeroRect);
    EXPECT_TRUE(CGRectIsNull(CGRectIntersection(square, touching)));
    EXPECT_EQ(NSUnionRect(square, overlapping), NSMakeRect(10, 20, 55, 60));
    EXPECT_EQ(NSUnionRect(square, empty), square);
    EXPECT_EQ(NSUnionRect(empty, empty), NSZeroRect);
    EXPECT_EQ(CGRectUnion(CGRectNull, square), square);
    EXPECT_TRUE(NSContainsRect(square, square));
    EXPECT_FALSE(NSContainsRect(square, NSMakeRect(15, 25, 0, 0)));
    EXPECT_TRUE(CGRectContainsRect(square, NSMakeRect(15, 25, 0, 0)));
    EXPECT_FALSE(NSContainsRect(square, overlapping));
    EXPECT_TRUE(NSIntersectsRect(square, overlapping));
    EXPECT_FALSE(NSIntersectsRect(square, empty));
}

TEST(Geometry, InsetOffsetAndIntegral) {
    EXPECT_EQ(NSInsetRect(square, 3, -4), NSMakeRect(13, 16, 24, 48));
    EXPECT_EQ(NSInsetRect(square, 20, 0), NSMakeRect(30, 20, -10, 40));
    EXPECT_TRUE(CGRectIsNull(CGRectInset(square, 20, 0)));
    EXPECT_EQ(NSOffsetRect(square, 1, -1), NSMakeRect(11, 19, 30, 40));
    EXPECT_EQ(NSIntegralRect(NSMakeRect(-0.5, 0.25, 1, 1)), NSMakeRect(-1, 0, 2, 2));
    EXPECT_EQ(NSIntegralRect(NSMakeRect(0.5, 0.5, 0, 3)), NSZeroRect);
    EXPECT_EQ(CGRectStandardize(CGRectMake(5, 5, -2, -3)), CGRectMake(3, 2, 2, 3));
}

TEST(Geometry, DividingCutsAtMostAll) {
    const struct {
        NSRectEdge edge;
        CGFloat amount;
        NSRect slice, rest;
    } cases[] = {
        {NSMinXEdge, 10, {{10, 20}, {10, 40}}, {{20, 20}, {20, 40}}},
        {NSMaxXEdge, 10, {{30, 20}, {10, 40}}, {{10, 20}, {20, 40}}},
        {NSMinYEdge, 90, {{10, 20}, {30, 40}}, {{10, 60}, {30, 0}}},
        {NSMaxYEdge, 15, {{10, 45}, {30, 15}}, {{10, 20}, {30, 25}}},
        {NSMaxYEdge, -1, {{10, 60}, {30, 0}}, {{10, 20}, {30, 40}}},
    };
    for (const auto& c : cases) {
        NSRect slice, rest;
        NSDivideRect(square, &slice, &rest, c.amount, c.edge);
        EXPECT_EQ(slice, c.slice) << c.edge;
        EXPECT_EQ(rest, c.rest) << c.edge;
    }
}

} // namespace
