// What of a composition is seen, and in which order it is painted. Reads the scene; everything
// after it knows only the plan.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/preview/Camera.h"
#include "minihost/preview/Canvas.h"

#include <cstdint>
#include <string>
#include <vector>

namespace minihost::preview {

struct Item {
    enum class Kind { solid, photo, text, shape, light, camera };
    Kind kind = Kind::solid;
    LayerId id = 0;
    int index = 0; // of the layer, 0 is the top one
    std::string name;
    Colour colour;
    bool coloured = false;  // the scene says its colour
    std::uint32_t seed = 0; // drawn from the name: the same name always looks the same
    bool flat = false;      // not 3D: it lies on the composition, untouched by light and haze
    bool selected = false;
    Facet facet; // none for lights and cameras
    std::vector<Point> polygon;
    Point spot; // where a light or a camera is marked
    double depth = 0;
    Vector middle, half_across, half_down; // in the world, for the shadow
};

struct Plan {
    Lens lens;
    int width = 1, height = 1; // of the picture, in pixels
    double point = 1;          // pixels of a point: line widths and small type are told in points
    double comp_width = 1;
    double floor = 0;         // its height (y) in the world
    double near = 0, far = 0; // depths between which the haze thickens
    Vector middle;            // of what is 3D: the grid is thickest there
    std::string caption;
    std::vector<Item> items;  // in the order of painting; none that is wholly hidden or outside
    std::vector<Item> edges;  // sheets that stand edge-on to a view that is not the camera's
    std::vector<Item> hidden; // what would be seen if nothing stood before it; for windows alone
};

// The size of the picture: the composition's shape, its longer side 960 points long, each point
// `scale` pixels. At least one pixel each way.
struct PictureSize {
    int width, height;
};
PictureSize picture_size(double comp_width, double comp_height, double scale);

Plan make_plan(const Scene& scene, double scale);

// The lens of the first camera, or the default one, as it stands before the whole composition: one
// pixel of the picture for one of the composition. And the name of that camera.
Lens camera_lens(const Scene& scene);
std::string camera_name(const Scene& scene);

// The picture of a window: of any size, seen through any lens. What is selected is left to the
// window to show.
struct Framing {
    int width = 1, height = 1; // pixels
    double point = 1;          // pixels
    Lens lens;
    bool through_camera =
        true; // else the first camera is in the picture, and 2D layers stand in space
    std::string caption;
};
Plan make_plan(const Scene& scene, const Framing& framing);

} // namespace minihost::preview
