// Where layers stand and where the lens sees them; every expected number is worked out by hand.

#include "minihost/preview/Camera.h"
#include "minihost/preview/OcclusionGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace minihost::preview {
namespace {

// The eye of a composition 1920 wide: 1920 · 50/36 before its plane.
constexpr double eye = 8000.0 / 3.0;
constexpr std::array<double, 4> card{0, 0, 200, 120};

void expect_near(const Vector& a, const Vector& b, const char* what) {
    EXPECT_NEAR(a.x, b.x, 1e-9) << what;
    EXPECT_NEAR(a.y, b.y, 1e-9) << what;
    EXPECT_NEAR(a.z, b.z, 1e-9) << what;
}

void expect_near(const Point& a, const Point& b, const char* what) {
    EXPECT_NEAR(a.x, b.x, 1e-6) << what;
    EXPECT_NEAR(a.y, b.y, 1e-6) << what;
}

Pose pose_at(Vector position, Vector orientation = {}, Vector rotation = {}) {
    Pose pose;
    pose.anchor_point = {100, 60, 0};
    pose.position = position;
    pose.orientation = orientation;
    pose.rotation = rotation;
    return pose;
}

Facet card_at(Vector position, Vector orientation = {}) {
    return Facet(default_lens(1920, 1080), place(pose_at(position, orientation)), card);
}

TEST(PreviewSpace, TurnsAboutXThenYThenZOfTheTurnedAxes) {
    const struct {
        const char* what;
        Vector degrees, from, to;
    } cases[] = {
        {"about x, y goes to z", {90, 0, 0}, {0, 1, 0}, {0, 0, 1}},
        {"about y, z goes to x", {0, 90, 0}, {0, 0, 1}, {1, 0, 0}},
        {"about z, x goes to y", {0, 0, 90}, {1, 0, 0}, {0, 1, 0}},
        {"z to x by y, which x leaves", {90, 90, 0}, {0, 0, 1}, {1, 0, 0}},
        {"x to y by z, y to z by x", {90, 0, 90}, {1, 0, 0}, {0, 0, 1}},
        {"turns beyond a turn", {0, 0, 3690}, {1, 0, 0}, {0, 1, 0}},
    };
    for (const auto& c : cases) expect_near(turn(c.degrees).point(c.from), c.to, c.what);
}

TEST(PreviewSpace, PlacesALayerByItsWholeTransform) {
    Pose pose = pose_at({960, 540, 7});
    pose.scale = {200, 50, 100};
    expect_near(place(pose).point({0, 0, 0}), {760, 510, 7}, "scaled about the anchor point");
    pose.rotation = {0, 0, 90};
    expect_near(place(pose).point({0, 0, 0}), {990, 340, 7}, "scaled, then rotated");
    // Rotation acts first, orientation on what comes of it: x goes to y, and y to z.
    const Pose both = pose_at({0, 0, 0}, {90, 0, 0}, {0, 0, 90});
    expect_near(place(both).direction({1, 0, 0}), {0, 0, 1}, "orientation over rotation");
    Pose flat = pose_at({300, 200, 900}, {45, 45, 45}, {30, 60, 90});
    expect_near(place_flat(flat).point({110, 60, 0}), {300, 210, 0}, "2D: Z rotation alone");
}

TEST(PreviewSpace, ProjectsThroughTheDefaultLens) {
    Lens lens = default_lens(1920, 1080);
    expect_near(lens.body.origin, {960, 540, -eye}, "the eye");
    const auto seen = [&](Vector p) { return lens.project(lens.view(p)); };
    expect_near(seen({1060, 480, 0}), {1060, 480}, "the composition's plane is seen as it is");
    expect_near(seen({1060, 480, eye}), {1010, 510}, "twice as far, half as large");
    lens.unit = 0.5;
    expect_near(seen({1060, 480, -eye / 2}), {580, 210}, "half as far, in a picture of half size");
}

TEST(PreviewSpace, LooksAtThePointOfInterest) {
    Pose pose;
    const auto seen = [&](Vector interest, Vector p) {
        const Lens lens = look(pose, interest, 1920, 1080);
        return lens.project(lens.view(p));
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

TEST(PreviewSpace, SeesACardCornerByCorner) {
    const Facet facet = card_at({960, 540, 0});
    const std::vector<Point> p = facet.polygon();
    ASSERT_EQ(p.size(), 4u);
    expect_near(p[0], {860, 480}, "top left");
    expect_near(p[2], {1060, 600}, "bottom right");
    EXPECT_TRUE(facet.whole());
    EXPECT_NEAR(facet.depth(), eye, 1e-9);
    EXPECT_NEAR(facet.stretch(0.5, 0.5)[0], 1, 1e-3);
    // Turned by 60°, a card is half as wide; which side it shows goes by which way it looks.
    const Facet turned = card_at({960, 540, 0}, {0, 60, 0});
    EXPECT_NEAR(turned.stretch(0.5, 0.5)[0], 0.5, 1e-3);
    EXPECT_NEAR(turned.stretch(0.5, 0.5)[1], 1, 1e-3);
    EXPECT_TRUE(turned.faces_lens());
    EXPECT_FALSE(card_at({960, 540, 0}, {0, 120, 0}).faces_lens());
    expect_near(facet.normal(), {0, 0, -1}, "the front looks at the viewer");
}

TEST(PreviewSpace, CutsWhatReachesBehindTheLens) {
    EXPECT_FALSE(card_at({960, 540, -eye - 1}).visible()) << "behind";
    EXPECT_FALSE(card_at({1e200, 540, 0}).visible()) << "too far for numbers";
    EXPECT_TRUE(card_at({1e6, 540, 0}).polygon().empty()) << "far beside the picture";
    // On edge below the eye and through its plane: the front half alone is drawn.
    Pose floor = pose_at({960, 600, -eye}, {90, 0, 0});
    floor.scale = {1000, 1000, 100};
    const Facet facet(default_lens(1920, 1080), place(floor), card);
    EXPECT_TRUE(facet.visible());
    EXPECT_FALSE(facet.whole());
    ASSERT_GE(facet.polygon().size(), 3u);
    for (const Point& p : facet.polygon()) {
        EXPECT_GT(p.y, 540) << "what lies below the eye is below the horizon";
        EXPECT_LT(std::abs(p.x), 5000);
        EXPECT_LT(p.y, 5000);
    }
}

TEST(PreviewSpace, LaysFlatLayersOnTheCompositionWhateverTheLens) {
    Pose aside;
    aside.position = {-4000, 200, -900};
    const Lens lens = look(aside, {960, 540, 0}, 1920, 1080);
    const Facet facet = Facet::flat(lens, place_flat(pose_at({300, 200, 5000})), card);
    expect_near(facet.at(0, 0), {200, 140}, "top left");
    expect_near(facet.at(1, 1), {400, 260}, "bottom right");
}

std::vector<Point> box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

TEST(PreviewCover, HidesOnlyWhatNothingShowsOf) {
    Cover cover(100, 60, 10);
    EXPECT_TRUE(cover.shows(box(20, 20, 30, 30)));
    EXPECT_FALSE(cover.shows(box(120, 20, 130, 30))) << "outside of the picture";
    cover.add(box(15, 15, 75, 55)); // fills the cells from 20 to 70 and 20 to 50
    EXPECT_FALSE(cover.shows(box(21, 21, 69, 49)));
    EXPECT_TRUE(cover.shows(box(21, 21, 76, 49))) << "sticks out to the right";
    EXPECT_TRUE(cover.shows(box(21, 5, 30, 30))) << "sticks out above";
    EXPECT_TRUE(cover.shows({{45, 25}, {95, 30}, {45, 35}})) << "a tip sticks out";
    EXPECT_FALSE(cover.full());
    cover.add(box(-50, -50, 200, 200));
    EXPECT_TRUE(cover.full());
    EXPECT_FALSE(cover.shows(box(0, 0, 100, 60)));
}

TEST(PreviewCover, ASlantedEdgeCoversNoCellInPart) {
    for (const bool mirrored : {false, true}) {
        const auto across = [&](double x) { return mirrored ? 100 - x : x; };
        const auto square = [&](double x, double y) { // of 8, within a cell
            return box(std::min(across(x), across(x + 8)), y, std::max(across(x), across(x + 8)),
                       y + 8);
        };
        Cover cover(100, 100, 10);
        cover.add({{across(0), 0}, {across(100), 0}, {across(0), 100}});
        EXPECT_FALSE(cover.shows(square(11, 11))) << mirrored;
        EXPECT_TRUE(cover.shows(square(41, 51))) << mirrored << ": the edge passes this cell";
        EXPECT_TRUE(cover.shows(square(71, 71))) << mirrored;
    }
}

} // namespace
} // namespace minihost::preview
