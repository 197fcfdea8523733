// Fitting and conforming. What leaves the cylinder is worked out by bisection over an inside test.

#include "cylinder/scaling.h"

#include "math/random.h"
#include "tests/cylinder/records.h"

#include <gtest/gtest.h>

namespace {

bool inside(Vector p, Vector size, double slack = 0) {
    return std::hypot(p.x / (size.x / 2), p.z / (size.z / 2)) <= 1 + slack &&
           std::abs(p.y) <= size.y / 2 * (1 + slack);
}

Vector drawn_in(Vector size, double stretch) {
    const double x = math::Rand(size.x / 2 * stretch), y = math::Rand(size.y / 2 * stretch);
    return {x, y, math::Rand(size.z / 2 * stretch)};
}

LayerInfo fitted(LayerInfo record, Vector size = {1000, 1000, 1000}) {
    CylinderOptions options;
    options.size = size;
    std::list<LayerInfo> layers{record};
    scale_layers_to_fit(layers, options);
    return layers.front();
}

TEST(Downscale, IsWhereTheSegmentLeaves) {
    const Vector size(900, 400, 250);
    math::SetRand(17);
    int left = 0;
    for (int n = 0; n < 5000; ++n) {
        const Vector p1 = drawn_in(size, 1), p2 = drawn_in(size, 3);
        if (!inside(p1, size)) continue;
        if (inside(p2, size)) {
            EXPECT_EQ(downscale(p1, p2, size), 1.0);
            continue;
        }
        double in = 0, out = 1;
        for (int step = 0; step < 60; ++step) {
            const double middle = (in + out) / 2;
            (inside(p1 + (p2 - p1) * middle, size) ? in : out) = middle;
        }
        EXPECT_NEAR(downscale(p1, p2, size), in, 1e-9);
        ++left;
    }
    EXPECT_GT(left, 1000);
}

TEST(Downscale, DegenerateSegments) {
    const Vector size(1000, 1000, 1000);
    const struct {
        const char* what;
        Vector p1, p2;
        double wanted;
    } cases[] = {
        {"no length", {10, 10, 10}, {10, 10, 10}, 1},
        {"both ends outside, through the middle", {-600, 0, 0}, {600, 0, 0}, 1},
        {"both ends outside, past it", {600, 0, -600}, {600, 0, 600}, 1},
        {"from outside to the middle: the way in", {600, 0, 0}, {0, 0, 0}, 1.0 / 6},
        {"straight up through the cap", {0, 0, 0}, {0, -1000, 0}, 0.5},
        {"straight up beside the wall", {501, 0, 0}, {501, -1000, 0}, 1},
        // Straight along the wall only the caps can be crossed.
        {"straight up on the wall, out of the top cap", {500, 250, 0}, {500, 750, 0}, 0.5},
        {"straight up on the wall, inside", {500, 0, 0}, {500, 100, 0}, 1},
        {"from the wall outwards", {500, 0, 0}, {600, 0, 0}, 0},
    };
    for (const auto& c : cases) EXPECT_NEAR(downscale(c.p1, c.p2, size), c.wanted, 1e-12) << c.what;
}

TEST(Fit, BringsEveryCornerInsideAndNoFurther) {
    const Vector size(800, 500, 300);
    math::SetRand(23);
    int shrunk = 0;
    for (int n = 0; n < 2000; ++n) {
        LayerInfo record = record_at(drawn_in(size, 0.9), 500, 300);
        if (!inside(vector_of(record.pos), size)) continue;
        record.orient.val.three_d = {math::Rand(180), math::Rand(180), math::Rand(180)};
        const LayerInfo fit = fitted(record, size);
        const double s = fit.scale.val.three_d.x / 100;
        EXPECT_EQ(fit.scale.val.three_d.y, fit.scale.val.three_d.x);
        EXPECT_EQ(fit.scale.val.three_d.z, 100);
        EXPECT_EQ(fit.scaled_width, static_cast<int>(500 * s));
        EXPECT_EQ(fit.scaled_height, static_cast<int>(300 * s));
        const auto corners_inside = [&](double scale) {
            bool all = true;
            for (const double x : {-250.0, 250.0})
                for (const double y : {-150.0, 150.0})
                    all &= inside(fit.mat * Vector(x * scale, y * scale, 0), size);
            return all;
        };
        if (500 * s < 1.001) continue; // held at one pixel
        EXPECT_TRUE(corners_inside(s * (1 - 1e-9)));
        EXPECT_EQ(corners_inside(s * (1 + 1e-9)), s == 1);
        shrunk += s < 1;
    }
    EXPECT_GT(shrunk, 500);
}

TEST(Fit, ByHand) {
    EXPECT_EQ(fitted(record_at({0, 0, 0})).scale.val.three_d.x, 100);
    // The upper corners of a layer 480 up meet the cap at 0.4 of their way.
    const LayerInfo capped = fitted(record_at({0, -480, 0}));
    EXPECT_NEAR(capped.scale.val.three_d.x, 40, 1e-9);
    EXPECT_NEAR(capped.scale.val.three_d.y, 40, 1e-9);
    EXPECT_EQ(capped.scaled_height, 40);
    // At 480 to the side the wall cuts the way to the outer corners at 20 of 50 pixels.
    EXPECT_NEAR(fitted(record_at({480, 0, 0})).scale.val.three_d.x, 40, 1e-9);
    // Centre outside: left alone.
    EXPECT_EQ(fitted(record_at({2000, 0, 0})).scale.val.three_d.x, 100);
}

TEST(Fit, KeepsOnePixelAndPassesOverNothing) {
    LayerInfo large = record_at({0, -500, 0}, 1000, 10); // on the cap: its way out is 0
    large.orient.val.three_d = {0, 0, 90};
    const LayerInfo fit = fitted(large);
    EXPECT_DOUBLE_EQ(fit.scale.val.three_d.x, 0.1);
    EXPECT_EQ(fit.scaled_width, 1);

    const LayerInfo none = fitted(record_at({2000, 0, 0}, 0, 0));
    EXPECT_EQ(none.scale.val.three_d.x, 100);
    EXPECT_EQ(none.scaled_width, 0);
}

TEST(Conform, BringsEachAxisToTheSize) {
    CylinderOptions options;
    options.target_size = 100;
    std::list<LayerInfo> layers{record_at({0, 0, 0}, 200, 50), record_at({0, 0, 0}, 3, 0)};
    scale_layers_conform(layers, options);
    EXPECT_VECTOR_NEAR(vector_of(layers.front().scale), Vector(50, 200, 100), 0);
    EXPECT_EQ(layers.front().scaled_width, 100);
    EXPECT_EQ(layers.front().scaled_height, 100);
    // The factor is a float: 100/3 is 33.33333206..., and 3 times that is just below 100.
    EXPECT_DOUBLE_EQ(layers.back().scale.val.three_d.x, 3333.333206176758);
    EXPECT_EQ(layers.back().scaled_width, 99);
    EXPECT_EQ(layers.back().scale.val.three_d.y, 100); // an axis of size 0 keeps its scale
    EXPECT_EQ(layers.back().scaled_height, 0);
}

} // namespace
