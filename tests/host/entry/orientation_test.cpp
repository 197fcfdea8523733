// Orientations through the dialog. The one towards the camera is checked by the directions of a
// layer's front (-z) and top (-y).

#include "tests/host/entry/PluginTest.h"

#include <cmath>
#include <random>

namespace {

using minihost::Vec3;

Vec3 turned(Vec3 v, const Vec3& degrees) {
    const auto turn = [](double& a, double& b, double angle) {
        const double c = std::cos(angle * M_PI / 180), s = std::sin(angle * M_PI / 180), old = a;
        a = c * old - s * b;
        b = s * old + c * b;
    };
    turn(v[0], v[1], degrees[2]);
    turn(v[2], v[0], degrees[1]);
    turn(v[1], v[2], degrees[0]);
    return v;
}

std::string camera_at(const Vec3& p, const Vec3& target, const std::string& angles = "") {
    return camera("Eye", R"("transform": {"position": )" + Json(p).dump() +
                             R"(, "point_of_interest": )" + Json(target).dump() + angles + "}");
}

TEST(TowardsCamera, EveryLayerFacesTheChosenCamera) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> anywhere(-900, 900);
    for (int n = 0; n < 12; ++n) {
        const Vec3 eye{anywhere(random), anywhere(random), anywhere(random)}, target{5, 6, 7};
        PluginHost host(scene_of({solid("A"), solid("B"), camera_at(eye, target)}));
        host.play("open\nset orientation.towards-camera=on\nclick apply");
        Vec3 back{eye[0] - 5, eye[1] - 6, eye[2] - 7};
        const double length = std::hypot(back[0], back[1], back[2]);
        const Vec3& orientation = host.layer("A").transform.orientation;
        EXPECT_THAT(turned({0, 0, -1}, orientation),
                    Near(back[0] / length, back[1] / length, back[2] / length, 1e-7));
        EXPECT_EQ(host.layer("B").transform.orientation, orientation);
    }
}

TEST(TowardsCamera, AddsTheCamerasOwnAngles) {
    // At its own point of interest a camera has no direction: only half a turn about y remains.
    const std::string angles = R"(, "orientation": [1, 2, 3], "rotation": [10, 20, 30])";
    PluginHost host(scene_of({solid("A"), camera_at({5, 5, 5}, {5, 5, 5}, angles)}));
    host.play("open\nset orientation.towards-camera=on\nclick apply");
    EXPECT_THAT(host.layer("A").transform.orientation, Near(11, 202, 33));
}

TEST(Orientations, ReplaceTheRotationsUnlessThereIsNone) {
    const std::string turned_solid =
        solid("A", 10, 10, R"("transform": {"orientation": [1, 2, 3], "rotation": [4, 5, 6]})");
    PluginHost host(scene_of({turned_solid}));
    const auto& transform = host.layer("A").transform;
    host.play("open\nclick apply");
    EXPECT_THAT(transform.orientation, Near(1, 2, 3));
    EXPECT_THAT(transform.rotation, Near(4, 5, 6));

    // The first layer is to the right of the axis.
    const struct {
        const char* choice;
        Vec3 wanted;
    } cases[] = {{"xy", {0, 0, 0}},
                 {"xz", {-90, 0, 0}},
                 {"yz", {0, -90, 0}},
                 {"rotate-yz-outward", {0, -90, 0}},
                 {"rotate-yz-inward", {0, 90, 0}},
                 {"rotate-xy", {-180, 0, -180}},
                 {"rotate-xz", {-90, 0, 270}}};
    for (const auto& c : cases) {
        host.play(std::string("set orientation.") + c.choice + "=on\nclick apply");
        EXPECT_THAT(transform.orientation, Near(c.wanted[0], c.wanted[1], c.wanted[2])) << c.choice;
        EXPECT_THAT(transform.rotation, Near(0, 0, 0)) << c.choice;
    }
    host.play("set orientation.random=on\nclick apply");
    for (const double angle : transform.orientation) EXPECT_TRUE(angle >= 0 && angle <= 360);
}

} // namespace
