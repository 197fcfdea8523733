#include "math/tiled_plane.h"

#include "tests/math/support.h"

using namespace math_test;
using math::FPoint;
using math::FRect;
using math::TiledPlane;

namespace {

TEST(TiledPlane, VisitsTheCellsOnceFromTheAnchor) {
    const int starts[] = {0, 2, 3, 8, 10, 11, 12, 14, 15}; // in a grid of 4 columns and 4 rows
    for (int anchor = 0; anchor < 9; ++anchor) {
        TiledPlane plane(400, 400, anchor, 4, 4), single(100, 60, anchor, 1, 1);
        FPoint p;
        for (int n = 0; n < 16; ++n) {
            ASSERT_TRUE(plane.put_tile(100, 100, p));
            const int cell = (starts[anchor] + n) % 16;
            EXPECT_NEAR(p.x, -150 + 100 * (cell % 4), 1e-12) << anchor;
            EXPECT_NEAR(p.y, -150 + 100 * (cell / 4), 1e-12) << anchor;
        }
        EXPECT_TRUE(plane.is_full());
        EXPECT_FALSE(plane.put_tile(1, 1, p));
        ASSERT_TRUE(single.put_tile(20, 10, p));
        EXPECT_EQ(p.x, (anchor % 3 - 1) * 40);
        EXPECT_EQ(p.y, (anchor / 3 - 1) * 25);
        EXPECT_TRUE(single.is_full());
    }
}

TEST(TiledPlane, TilesNeverOverlapNorLeaveTheRectangle) {
    Inputs inputs(1);
    for (int n = 0; n < 300; ++n) {
        TiledPlane plane(90, 120, inputs.whole(0, 8), inputs.whole(1, 9), inputs.whole(1, 9));
        FPoint p;
        std::size_t put = 0;
        for (double w = 9, h = 9; plane.put_tile(w, h, p); w = inputs.number(1, 50)) {
            ASSERT_EQ(plane.placed().size(), ++put);
            const FRect& last = plane.placed().back();
            EXPECT_TRUE(-45 <= last.left && last.right <= 45);
            EXPECT_TRUE(-60 <= last.top && last.bottom <= 60);
            for (const FRect& r : plane.placed())
                EXPECT_TRUE(&r == &last || r.left > last.right || last.left > r.right ||
                            r.top > last.bottom || last.top > r.bottom);
            h = inputs.number(1, 50);
        }
    }
}

TEST(TiledPlane, WideTilesCopiesAndEmptyGrids) {
    TiledPlane plane(400, 100, 0, 4, 1);
    FPoint p;
    EXPECT_TRUE(plane.put_tile(100, 100, p));
    EXPECT_TRUE(plane.put_tile(100, 100, p));
    TiledPlane copy = plane;
    // Wider than its cell: the third would cover a neighbour, the fourth leave the rectangle.
    EXPECT_FALSE(plane.put_tile(140, 100, p));
    EXPECT_TRUE(plane.is_full());
    EXPECT_TRUE(copy.put_tile(100, 100, p)); // touches its neighbour
    EXPECT_EQ(p.x, 50);
    EXPECT_FALSE(TiledPlane(100, 100, 99, -3, -3).put_tile(1, 1, p));
    EXPECT_EQ(TiledPlane(100, 100, 99, 0, 5).get_tile_pos(1, 1, 3).x, 0);
}

} // namespace
