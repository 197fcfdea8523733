// What is seen of a composition, in the order in which it is painted. Only building the list reads
// the scene; all that paints, shades or picks works from the list.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/preview/Canvas.h"
#include "minihost/preview/LayerQuad.h"

#include <cstdint>
#include <string>
#include <vector>

namespace minihost::preview {

// One layer.
struct DrawItem {
    LayerKind kind = LayerKind::Solid;
    LayerId id = 0;
    int index = 0; // of the layer, 0 is the top one
    std::string name;
    Rgba color;
    bool has_own_color = false; // the scene gives it
    std::uint32_t seed = 0;     // from the name: the same name always looks the same
    bool flat = false;          // not 3D: it lies on the composition, without light and haze
    bool selected = false;
    LayerQuad quad; // not of lights and cameras
    std::vector<Point> polygon;
    Point mark; // where a light or a camera is marked
    double depth = 0;
    Vector center, half_across, half_down; // in the world

    // Lights and cameras are marks on the picture, not rectangles in the scene.
    bool is_mark() const { return kind == LayerKind::Light || kind == LayerKind::Camera; }
    // Hides what is behind its rectangle.
    bool is_opaque() const { return kind == LayerKind::Solid || kind == LayerKind::Footage; }
    // The n-th random number in [0, 1) of its seed.
    double random(int n) const;
};

struct DrawList {
    Camera camera;
    int width = 1, height = 1; // of the picture, in pixels
    double point = 1;          // pixels per point: line widths and small type are given in points
    double comp_width = 1;
    double floor = 0;         // its y in the world
    double near = 0, far = 0; // depths between which the haze thickens
    Vector center;            // of what is 3D: the grid is thickest there
    std::string caption;
    std::vector<DrawItem> items;  // in painting order, without those wholly hidden or outside
    std::vector<DrawItem> edges;  // layers seen edge-on in a view that is not the camera's
    std::vector<DrawItem> hidden; // those wholly behind others; for windows alone
};

// The preview of a composition as its camera sees it: of its shape, its longer side 960 points of
// `scale` pixels each; at least one pixel each way.
DrawList make_draw_list(const Scene& scene, double scale);

// The picture of a window: of any size, through any camera. Marking the selection is left to the
// window.
struct Framing {
    int width = 1, height = 1; // pixels
    double point = 1;          // pixels per point
    Camera camera;
    // Through the scene's own camera, which is not marked then; 2D layers lie on the picture. Else
    // they stand in space.
    bool through_scene_camera = true;
};
DrawList make_draw_list(const Scene& scene, const Framing& framing);

// The first camera of the scene, or the default one, in front of the whole composition at one pixel
// of the picture for one of the composition; and its name.
Camera scene_camera(const Scene& scene);
std::string scene_camera_name(const Scene& scene);

} // namespace minihost::preview
