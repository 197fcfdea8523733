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
        TiledPlane plane(400, 400, anchor, 4, 4);
        for (int n = 0; n < 16; ++n) {
            EXPECT_FALSE(plane.is_full());
            FPoint p;
            ASSERT_TRUE(plane.put_tile(100, 100, p));
            const int cell = (starts[anchor] + n) % 16;
            EXPECT_NEAR(p.x, -150 + 100 * (cell % 4), 1e-12) << anchor;
            EXPECT_NEAR(p.y, -150 + 100 * (cell / 4), 1e-12) << anchor;
        }
        FPoint p{7, 7};
        EXPECT_TRUE(plane.is_full());
        EXPECT_FALSE(plane.put_tile(1, 1, p));
        EXPECT_EQ(p.x, 7);
    }
    TiledPlane odd(300, 300, 4, 3, 3);
    FPoint p;
    for (const V2& wanted : {V2(0, 0), V2(100, 0), V2(-100, 100)}) {
        EXPECT_TRUE(odd.put_tile(100, 100, p));
        EXPECT_EQ(V2(p.x, p.y), wanted);
    }
}

TEST(TiledPlane, ASingleCellAlignsItsTile) {
    for (int anchor = 0; anchor < 9; ++anchor) {
        TiledPlane plane(100, 60, anchor, 1, 1);
        FPoint p;
        ASSERT_TRUE(plane.put_tile(20, 10, p));
        EXPECT_EQ(p.x, (anchor % 3 - 1) * 40);
        EXPECT_EQ(p.y, (anchor / 3 - 1) * 25);
        EXPECT_TRUE(plane.is_full());
    }
}

TEST(TiledPlane, TilesNeverOverlapNorLeaveTheRectangle) {
    Inputs inputs(1);
    for (int n = 0; n < 300; ++n) {
        const int cols = inputs.whole(1, 9), rows = inputs.whole(1, 9);
        TiledPlane plane(90, 120, inputs.whole(0, 8), cols, rows);
        FPoint p{7, 7};
        std::size_t put = 0;
        for (int i = 0; i < cols * rows; ++i) {
            const double w = inputs.number(1, 50), h = inputs.number(1, 50);
            if (!plane.put_tile(w, h, p)) break;
            ASSERT_EQ(plane.placed().size(), ++put);
            const FRect& last = plane.placed().back();
            EXPECT_NEAR(last.right - last.left, w, 1e-11);
            EXPECT_NEAR(last.top + last.bottom, 2 * p.y, 1e-11);
            EXPECT_TRUE(-45 <= last.left && last.right <= 45);
            EXPECT_TRUE(-60 <= last.top && last.bottom <= 60);
            for (const FRect& r : plane.placed())
                EXPECT_TRUE(&r == &last || std::max(r.left, last.left) > std::min(r.right, last.right) ||
                            std::max(r.top, last.top) > std::min(r.bottom, last.bottom));
        }
    }
}

TEST(TiledPlane, WideTilesCopiesAndEmptyGrids) {
    TiledPlane plane(400, 100, 0, 4, 1);
    FPoint p;
    EXPECT_TRUE(plane.put_tile(100, 100, p));
    EXPECT_TRUE(plane.put_tile(100, 100, p));
    TiledPlane copy = plane;
    EXPECT_TRUE(copy.put_tile(100, 100, p)); // touches its neighbour
    EXPECT_EQ(p.x, 50);
    // Wider than its cell: the third would cover a neighbour, the fourth would leave the rectangle.
    EXPECT_FALSE(plane.put_tile(140, 100, p));
    EXPECT_TRUE(plane.is_full());
    EXPECT_FALSE(copy.is_full());
    for (const auto& [cols, rows] : {std::pair{0, 5}, {5, 0}, {-3, -3}, {-1, 4}}) {
        TiledPlane none(100, 100, 99, cols, rows);
        EXPECT_TRUE(none.is_full());
        EXPECT_FALSE(none.put_tile(1, 1, p));
        EXPECT_EQ(none.get_tile_pos(1, 1, 3).x, 0);
    }
}

} // namespace
