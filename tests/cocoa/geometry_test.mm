#include <Foundation/NSGeometry.h>

#include <gtest/gtest.h>

static bool operator==(const NSRect& a, const NSRect& b) {
    return NSEqualPoints(a.origin, b.origin) && NSEqualSizes(a.size, b.size);
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
        EXPECT_EQ(NSMouseInRect(c.point, square, NO), c.in_unflipped);
    }
    EXPECT_FALSE(NSPointInRect(NSMakePoint(10, 20), NSMakeRect(10, 20, 0, 0)));
}

TEST(Geometry, UnionsIntersectionsAndInsets) {
    const NSRect touching = NSMakeRect(40, 20, 5, 5), far = NSMakeRect(100, 100, 1, 1);
    const NSRect overlapping = NSMakeRect(35, 50, 30, 30), empty = NSMakeRect(0, 0, 0, 9);
    EXPECT_EQ(NSIntersectionRect(square, overlapping), NSMakeRect(35, 50, 5, 10));
    EXPECT_EQ(NSIntersectionRect(square, touching), NSZeroRect);
    EXPECT_EQ(NSIntersectionRect(square, far), NSZeroRect);
    EXPECT_EQ(NSUnionRect(square, overlapping), NSMakeRect(10, 20, 55, 60));
    EXPECT_EQ(NSUnionRect(square, empty), square);
    EXPECT_EQ(NSUnionRect(empty, empty), NSZeroRect);
    EXPECT_EQ(NSInsetRect(square, 20, -4), NSMakeRect(30, 16, -10, 48));
    EXPECT_EQ(CGRectStandardize(CGRectMake(5, 5, -2, -3)), CGRectMake(3, 2, 2, 3));
}

} // namespace
