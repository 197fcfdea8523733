// How the records are turned. The tests rotate the layer's own directions by the resulting angles
// and look where they point: its front is -z, its top is -y.

#include "cylinder/orientation.h"

#include "math/random.h"
#include "tests/cylinder/records.h"

#include <gtest/gtest.h>

namespace {

Vector oriented(Vector pos, Orientation mode, Vector size = {1000, 1000, 1000},
                AEGP_StreamValue camera = {}) {
    std::list<LayerInfo> layers{record_at(pos)};
    layers.front().orient.val.three_d = {11, 12, 13};
    CylinderOptions options;
    options.orientation = mode;
    options.size = size;
    orient_layers(layers, options, camera);
    return vector_of(layers.front().orient);
}

// Where a direction of the layer points after the orientation (degrees), by elementary rotations.
Vector turned(Vector v, Vector angles) {
    const auto turn = [](double& a, double& b, double angle) {
        const double c = cosine(angle), s = sine(angle), old = a;
        a = c * old - s * b;
        b = s * old + c * b;
    };
    turn(v.x, v.y, angles.z);
    turn(v.z, v.x, angles.y);
    turn(v.y, v.z, angles.x);
    return v;
}

const Vector front(0, 0, -1), top(0, -1, 0);

TEST(Orientation, FixedModesIgnoreThePlace) {
    const Vector pos(120, 5, -70);
    EXPECT_VECTOR_NEAR(oriented(pos, Orientation::unchanged), Vector(11, 12, 13), 0);
    EXPECT_VECTOR_NEAR(oriented(pos, Orientation::xy), Vector(0, 0, 0), 0);
    EXPECT_VECTOR_NEAR(oriented(pos, Orientation::xz), Vector(-90, 0, 0), 0);
    EXPECT_VECTOR_NEAR(oriented(pos, Orientation::yz), Vector(0, -90, 0), 0);
    AEGP_StreamValue camera{};
    camera.val.three_d = {1, 2, 3};
    EXPECT_VECTOR_NEAR(oriented(pos, Orientation::towards_camera, {1, 1, 1}, camera),
                       Vector(1, 2, 3), 0);
}

TEST(Orientation, RandomDrawsThreeAnglesALayer) {
    math::SetRand(4);
    std::list<LayerInfo> layers = records(2);
    CylinderOptions options;
    options.orientation = Orientation::random;
    orient_layers(layers, options, {});
    math::SetRand(4);
    for (const LayerInfo& layer : layers) {
        const double x = math::Rand(), y = math::Rand(), z = math::Rand();
        EXPECT_VECTOR_NEAR(vector_of(layer.orient), Vector(360 * x, 360 * y, 360 * z), 0);
    }
}

TEST(Orientation, OutwardAndInwardFaceAlongTheNormalOfTheEllipse) {
    const Vector size(1000, 600, 300);
    for (int angle = 0; angle < 360; angle += 5) {
        const Vector pos(450 * cosine(angle), angle - 180, -130 * sine(angle));
        const Vector normal = Vector(pos.x / (500 * 500), 0, pos.z / (150 * 150)).Normalized();
        const Vector out = oriented(pos, Orientation::yz_outward, size);
        EXPECT_VECTOR_NEAR(turned(front, out), normal, 1e-7);
        EXPECT_VECTOR_NEAR(turned(top, out), top, 1e-7); // never upside down
        const Vector in = oriented(pos, Orientation::yz_inward, size);
        EXPECT_VECTOR_NEAR(in, Vector(out.x, out.y + 180, out.z), 0);
    }
}

TEST(Orientation, TangentAndFlatFollowTheCircle) {
    for (int angle = 0; angle < 360; angle += 5) {
        const Vector pos(200 * cosine(angle), 33, -200 * sine(angle));
        const Vector tangent = oriented(pos, Orientation::tangent_xy);
        EXPECT_VECTOR_NEAR(turned(front, tangent), Vector(-pos.z / 200, 0, pos.x / 200), 1e-7);
        EXPECT_VECTOR_NEAR(turned(top, tangent), top, 1e-7);
        const Vector flat = oriented(pos, Orientation::flat_xz);
        EXPECT_VECTOR_NEAR(turned(front, flat), top, 1e-7);
        EXPECT_VECTOR_NEAR(turned(top, flat), Vector(-pos.x / 200, 0, -pos.z / 200), 1e-7);
    }
}

TEST(Orientation, TheAnglesThemselves) {
    const struct {
        const char* what;
        Vector pos;
        Orientation mode;
        Vector wanted;
    } cases[] = {
        {"right", {200, 9, 0}, Orientation::yz_outward, {0, -90, 0}},
        {"left", {-200, 9, 0}, Orientation::yz_outward, {0, 90, 0}},
        {"left, inward", {-200, 9, 0}, Orientation::yz_inward, {0, 270, 0}},
        {"nearest", {0, 9, -200}, Orientation::yz_outward, {0, 0, 0}},
        {"farthest", {0, 9, 200}, Orientation::yz_outward, {-180, 0, -180}},
        {"0.6 to the right", {120, 9, -160}, Orientation::yz_outward, {0, -36.86989764584402, 0}},
        {"0.6 to the left", {-120, 9, -160}, Orientation::yz_outward, {0, 36.86989764584402, 0}},
        {"0.6 right, behind",
         {120, 9, 160},
         Orientation::yz_outward,
         {-180, -36.86989764584402, -180}},
        {"on the axis, outward", {0, 9, 0}, Orientation::yz_outward, {0, -90, 0}},
        {"on the axis, tangent", {0, 9, 0}, Orientation::tangent_xy, {0, 0, 0}},
        {"right, flat", {200, 9, 0}, Orientation::flat_xz, {-90, 0, 270}},
        {"left, flat", {-200, 9, 0}, Orientation::flat_xz, {-90, 0, 90}},
        {"nearest, flat", {0, 9, -200}, Orientation::flat_xz, {-90, 0, 0}},
        {"farthest, flat", {0, 9, 200}, Orientation::flat_xz, {-90, 0, 180}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_VECTOR_NEAR(oriented(c.pos, c.mode), c.wanted, 1e-9);
    }
}

} // namespace
