// Where the records go. Expected places are worked out from angle, height and distance one by one.

#include "cylinder/placement.h"

#include "math/random.h"
#include "tests/cylinder/records.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::vector<Vector> places(const std::list<LayerInfo>& layers) {
    std::vector<Vector> all;
    for (const LayerInfo& layer : layers) all.push_back(vector_of(layer.pos));
    return all;
}

std::vector<Vector> placed_regularly(int count, const CylinderOptions& options) {
    auto layers = records(count);
    pos_use_dist(layers, options);
    return places(layers);
}

Vector on_cylinder(double angle, double height, double distance) {
    return {distance * cosine(angle), -height, -distance * sine(angle)};
}

TEST(RegularPlacement, TheInitialValuesMakeAHelixThatStopsAtTheTop) {
    const auto at = placed_regularly(30, {});
    for (int i = 0; i < 30; ++i)
        EXPECT_VECTOR_NEAR(at[i], on_cylinder(50.0 * i, std::min(50.0 * i, 500.0), 360), 1e-9);
    EXPECT_EQ(at[0].x, 360);
    EXPECT_EQ(at[11].y, -500); // clamped exactly, not nearly
}

TEST(RegularPlacement, IncrementsGrowWithEachLayer) {
    CylinderOptions options;
    options.angle = {0, 0, 10};
    options.height = {5, 5, 20};
    options.distance = {100, 100, 7};
    const auto at = placed_regularly(5, options);
    const double angles[] = {0, 10, 30, 60, 100};   // steps of 10, 20, 30, 40
    const double heights[] = {0, 25, 70, 135, 220}; // steps of 25, 45, 65, 85
    for (int i = 0; i < 5; ++i)
        EXPECT_VECTOR_NEAR(at[i], on_cylinder(angles[i], heights[i], 100 + 7 * i), 1e-9);
}

TEST(RegularPlacement, DistancesStayOnTheEllipticWall) {
    CylinderOptions options;
    options.size = {1000, 1000, 200};
    options.angle = {90, 90, 0};
    const auto flat = placed_regularly(4, options);
    EXPECT_VECTOR_NEAR(flat[0], Vector(360, 0, 0), 0);
    EXPECT_VECTOR_NEAR(flat[1], Vector(0, -50, -100), 1e-9);
    EXPECT_VECTOR_NEAR(flat[2], Vector(-360, -100, 0), 1e-9);
    EXPECT_VECTOR_NEAR(flat[3], Vector(0, -150, 100), 1e-9);

    options.angle = {37, 37, 0};
    for (const double far : {1e6, -1e6}) {
        options.distance = {far, far, 0};
        const auto at = placed_regularly(40, options);
        EXPECT_EQ(at[0].x, far > 0 ? 500 : far); // the first is limited from above alone
        for (int i = 1; i < 40; ++i) {
            const double x = at[i].x / 500, z = at[i].z / 100;
            EXPECT_NEAR(x * x + z * z, 1, 1e-9);
            EXPECT_EQ(at[i].x * cosine(37 * i) > 0, far > 0) << i; // negative: the other side
        }
    }
}

TEST(RegularPlacement, ASingleLayerTakesNoAngleAndNoHeight) {
    CylinderOptions options;
    options.angle = {80, 80, 5};
    options.height = {-70, -70, 3};
    EXPECT_VECTOR_NEAR(placed_regularly(1, options)[0], Vector(360, 0, 0), 0);
    EXPECT_TRUE(placed_regularly(0, options).empty());
    options.height = {-70, -70, 0};
    EXPECT_EQ(placed_regularly(20, options)[19].y, 500); // down to the other cap
}

TEST(RegularPlacement, DrawsOneNumberAndThenThreeALayer) {
    CylinderOptions options;
    options.angle = {10, 90, 1};
    options.height = {0.1, 40.3, 0.7};
    options.distance = {100, 300, 3};
    math::SetRand(99);
    const auto at = placed_regularly(6, options);

    math::SetRand(99);
    const double u0 = math::Rand();
    EXPECT_DOUBLE_EQ(at[0].x, 100 + 200 * u0);
    double angle = 0, height = 0;
    for (int i = 1; i < 6; ++i) {
        const double u_angle = math::Rand(), u_height = math::Rand(), u_distance = math::Rand();
        angle += 10 + 80 * u_angle + i;
        height = height + u_height * (40.3 - 0.1) + 0.1 + 0.7 * i; // from left to right
        EXPECT_EQ(at[i].y, -height) << i;
        EXPECT_VECTOR_NEAR(at[i], on_cylinder(angle, height, 100 + 200 * u_distance + 3 * i), 1e-9);
    }
}

TEST(RandomPlacement, StaysInsideAndFollowsTheSeed) {
    CylinderOptions options;
    options.size = {800, 300, 120};
    auto layers = records(2000);
    math::SetRand(5);
    pos_randomly(layers, options);
    const auto at = places(layers);
    double lowest = 0, highest = 0, widest = 0;
    for (const Vector& p : at) {
        EXPECT_LE(std::hypot(p.x / 400, p.z / 60), 1 + 1e-12);
        EXPECT_LE(std::abs(p.y), 150);
        lowest = std::max(lowest, p.y), highest = std::min(highest, p.y);
        widest = std::max(widest, std::abs(p.x));
    }
    EXPECT_GT(lowest, 149);
    EXPECT_LT(highest, -149);
    EXPECT_GT(widest, 350);

    math::SetRand(5);
    for (int i = 0; i < 3; ++i) {
        const double height = -150 + 300 * math::Rand(), angle = 360 * math::Rand();
        // The wall in that direction, from the ellipse's polar equation.
        const double wall = 400 * 60 / std::hypot(60 * cosine(angle), 400 * sine(angle));
        EXPECT_VECTOR_NEAR(at[i], on_cylinder(angle, height, wall * math::Rand()), 1e-9);
    }
}

} // namespace
