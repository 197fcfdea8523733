// Where layers are and where the camera sees them; every expected number is worked out by hand.

#include "minihost/preview/LayerQuad.h"
#include "minihost/preview/OcclusionGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace minihost::preview {
namespace {

// The distance of the default camera of a composition 1920 wide: 1920 · 50/36.
constexpr double eye = 8000.0 / 3.0;
constexpr Rectangle card{0, 0, 200, 120};

void expect_near(const Vector& a, const Vector& b, const char* what) {
    EXPECT_NEAR(a.x, b.x, 1e-9) << what;
    EXPECT_NEAR(a.y, b.y, 1e-9) << what;
    EXPECT_NEAR(a.z, b.z, 1e-9) << what;
}

void expect_near(const Point& a, const Point& b, const char* what) {
    EXPECT_NEAR(a.x, b.x, 1e-6) << what;
    EXPECT_NEAR(a.y, b.y, 1e-6) << what;
}

// Of a layer whose anchor point is the center of the card.
Transform transform_at(const Vec3& position, const Vec3& orientation = {},
                       const Vec3& rotation = {}) {
    return {{100, 60, 0}, position, {100, 100, 100}, orientation, rotation};
}

LayerQuad card_at(const Vec3& position, const Vec3& orientation = {}) {
    return LayerQuad(default_camera(1920, 1080),
                     layer_to_world(transform_at(position, orientation)), card);
}

TEST(Geometry, RotatesAboutXThenYThenZOfTheRotatedAxes) {
    const struct {
        const char* what;
        Vector degrees, from, to;
    } cases[] = {
        {"about x, y goes to z", {90, 0, 0}, {0, 1, 0}, {0, 0, 1}},
        {"about y, z goes to x", {0, 90, 0}, {0, 0, 1}, {1, 0, 0}},
        {"about z, x goes to y", {0, 0, 90}, {1, 0, 0}, {0, 1, 0}},
        {"z to x by y; x then leaves it", {90, 90, 0}, {0, 0, 1}, {1, 0, 0}},
        {"x to y by z, y to z by x", {90, 0, 90}, {1, 0, 0}, {0, 0, 1}},
        {"beyond a whole turn", {0, 0, 3690}, {1, 0, 0}, {0, 1, 0}},
    };
    for (const auto& c : cases) expect_near(rotation(c.degrees).point(c.from), c.to, c.what);
}

TEST(Geometry, PlacesALayerByItsWholeTransform) {
    Transform pose = transform_at({960, 540, 7});
    pose.scale = {200, 50, 100};
    expect_near(layer_to_world(pose).point({0, 0, 0}), {760, 510, 7},
                "scaled about the anchor point");
    pose.rotation = {0, 0, 90};
    expect_near(layer_to_world(pose).point({0, 0, 0}), {990, 340, 7}, "scaled, then rotated");
    // Rotation is applied first, then orientation: x goes to y, and y to z.
    const Transform both = transform_at({0, 0, 0}, {90, 0, 0}, {0, 0, 90});
    expect_near(layer_to_world(both).direction({1, 0, 0}), {0, 0, 1}, "orientation over rotation");
    Transform flat = transform_at({300, 200, 900}, {45, 45, 45}, {30, 60, 90});
    expect_near(flat_layer_to_world(flat).point({110, 60, 0}), {300, 210, 0},
                "2D: Z rotation alone");
}

TEST(Camera, ProjectsThroughTheDefaultCamera) {
    Camera camera = default_camera(1920, 1080);
    expect_near(camera.axes.origin, {960, 540, -eye}, "the eye");
    const auto seen = [&](Vector p) { return camera.project(camera.to_view(p)); };
    expect_near(seen({1060, 480, 0}), {1060, 480}, "the composition's plane is seen as it is");
    expect_near(seen({1060, 480, eye}), {1010, 510}, "twice as far, half as large");
    camera.unit = 0.5;
    expect_near(seen({1060, 480, -eye / 2}), {580, 210}, "half as far, in a picture of half size");
}

TEST(Camera, LooksAtThePointOfInterest) {
    Transform pose;
    const auto seen = [&](const Vec3& interest, const Vector& p) {
        pose.anchor_point = interest;
        const Camera camera = camera_from_transform(pose, 1920, 1080);
        return camera.project(camera.to_view(p));
    };
    const double tenth = eye / 10; // pixels that a tenth of the distance takes
    expect_near(seen({100, 0, 0}, {100, 0, 0}), {960, 540}, "the point itself is in the middle");
    expect_near(seen({100, 0, 0}, {100, 10, 0}), {960, 540 + tenth}, "down stays down");
    expect_near(seen({100, 0, 0}, {100, 0, -10}), {960 + tenth, 540}, "facing +x, -z is right");
    expect_near(seen({0, 100, 0}, {10, 100, 0}), {960 + tenth, 540}, "straight down");
    expect_near(seen({0, 0, 0}, {10, 0, 100}), {960 + tenth, 540}, "no direction: along z");
    pose.rotation = {0, 0, 90};
    expect_near(seen({0, 0, 100}, {10, 0, 100}), {960, 540 - tenth}, "rolled by a quarter");
    pose.rotation = {0, 90, 0};
    expect_near(seen({0, 0, 100}, {100, 10, 0}), {960, 540 + tenth}, "turned away to +x");
}

TEST(LayerQuad, SeesACardCornerByCorner) {
    const LayerQuad quad = card_at({960, 540, 0});
    const std::vector<Point> p = quad.polygon();
    ASSERT_EQ(p.size(), 4u);
    expect_near(p[0], {860, 480}, "top left");
    expect_near(p[2], {1060, 600}, "bottom right");
    EXPECT_TRUE(quad.is_in_front());
    EXPECT_NEAR(quad.depth(), eye, 1e-9);
    EXPECT_NEAR(quad.stretch(0.5, 0.5).smallest, 1, 1e-3);
    // Turned by 60°, a card looks half as wide; beyond 90° it shows its back.
    const LayerQuad turned = card_at({960, 540, 0}, {0, 60, 0});
    EXPECT_NEAR(turned.stretch(0.5, 0.5).smallest, 0.5, 1e-3);
    EXPECT_NEAR(turned.stretch(0.5, 0.5).largest, 1, 1e-3);
    EXPECT_TRUE(turned.faces_camera());
    EXPECT_FALSE(card_at({960, 540, 0}, {0, 120, 0}).faces_camera());
    expect_near(quad.normal(), {0, 0, -1}, "the front looks at the viewer");
}

TEST(LayerQuad, ClipsWhatReachesBehindTheCamera) {
    EXPECT_FALSE(card_at({960, 540, -eye - 1}).is_visible()) << "behind";
    EXPECT_FALSE(card_at({1e200, 540, 0}).is_visible()) << "too far for numbers";
    EXPECT_TRUE(card_at({1e6, 540, 0}).polygon().empty()) << "far beside the picture";
    // Lying below the eye and reaching behind it: only the part in front is drawn.
    Transform floor = transform_at({960, 600, -eye}, {90, 0, 0});
    floor.scale = {1000, 1000, 100};
    const LayerQuad quad(default_camera(1920, 1080), layer_to_world(floor), card);
    EXPECT_TRUE(quad.is_visible());
    EXPECT_FALSE(quad.is_in_front());
    ASSERT_GE(quad.polygon().size(), 3u);
    for (const Point& p : quad.polygon()) {
        EXPECT_GT(p.y, 540) << "below the horizon";
        EXPECT_LT(std::abs(p.x), 5000);
        EXPECT_LT(p.y, 5000);
    }
}

TEST(LayerQuad, LaysFlatLayersOnTheCompositionWhateverTheCamera) {
    Transform aside;
    aside.position = {-4000, 200, -900};
    aside.anchor_point = {960, 540, 0};
    const Camera camera = camera_from_transform(aside, 1920, 1080);
    const LayerQuad quad =
        LayerQuad::flat(camera, flat_layer_to_world(transform_at({300, 200, 5000})), card);
    expect_near(quad.at(0, 0), {200, 140}, "top left");
    expect_near(quad.at(1, 1), {400, 260}, "bottom right");
}

std::vector<Point> box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

TEST(OcclusionGrid, HidesOnlyWhatIsWhollyCovered) {
    OcclusionGrid grid(100, 60, 10);
    EXPECT_TRUE(grid.is_visible(box(20, 20, 30, 30)));
    EXPECT_FALSE(grid.is_visible(box(120, 20, 130, 30))) << "outside the picture";
    grid.cover(box(15, 15, 75, 55)); // fills the cells from 20 to 70 and 20 to 50
    EXPECT_FALSE(grid.is_visible(box(21, 21, 69, 49)));
    EXPECT_TRUE(grid.is_visible(box(21, 21, 76, 49))) << "sticks out to the right";
    EXPECT_TRUE(grid.is_visible(box(21, 5, 30, 30))) << "sticks out above";
    EXPECT_TRUE(grid.is_visible({{45, 25}, {95, 30}, {45, 35}})) << "a tip sticks out";
    EXPECT_FALSE(grid.is_full());
    grid.cover(box(-50, -50, 200, 200));
    EXPECT_TRUE(grid.is_full());
    EXPECT_FALSE(grid.is_visible(box(0, 0, 100, 60)));
}

TEST(OcclusionGrid, ASlantedEdgeCoversOnlyWholeCells) {
    for (const bool mirrored : {false, true}) {
        const auto across = [&](double x) { return mirrored ? 100 - x : x; };
        const auto square = [&](double x, double y) { // 8 wide, within a cell
            return box(std::min(across(x), across(x + 8)), y, std::max(across(x), across(x + 8)),
                       y + 8);
        };
        OcclusionGrid grid(100, 100, 10);
        grid.cover({{across(0), 0}, {across(100), 0}, {across(0), 100}});
        EXPECT_FALSE(grid.is_visible(square(11, 11))) << mirrored;
        EXPECT_TRUE(grid.is_visible(square(41, 51))) << mirrored << ": the edge passes this cell";
        EXPECT_TRUE(grid.is_visible(square(71, 71))) << mirrored;
    }
}

} // namespace
} // namespace minihost::preview
