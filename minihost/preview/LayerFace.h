// What is drawn on a layer's rectangle, by its kind.

#pragma once

#include "minihost/preview/PreviewColors.h"
#include "minihost/preview/Shading.h"
#include "minihost/preview/Typesetter.h"

namespace minihost::preview {

// The surface of a layer to paint on: u and v go from 0 to 1 across and down its rectangle.
class LayerFace {
  public:
    LayerFace(Canvas& canvas, const DrawList& list, const DrawItem& item);

    Canvas& canvas;
    const DrawItem& item;
    const double point; // pixels per point
    const Shading shading;
    // Its smaller side as it is seen, in points; 0 if part of it is behind the camera.
    double extent = 0;

    bool has_detail() const { return extent >= 12; }
    Point at(double u, double v) const { return item.quad.at(u, v); }
    Path outline() const { return polygon_path(item.polygon); }
    Path ellipse(double u, double v, double half_width, double half_height) const;
    // From one height to another.
    Brush gradient(double v0, const Rgba& color0, double v1, const Rgba& color1) const;
    // Whether type of a height in the layer's pixels can be read at (u, v).
    bool is_readable(double height, double u, double v) const;
    // A line of text scaled by `scale`, its top left corner at (x, y) in the layer's pixels.
    Path text(const TextLine& line, double x, double y, double scale) const;
};

void paint_solid(const LayerFace& face);
void paint_footage(const LayerFace& face);
void paint_shape(const LayerFace& face);
void paint_text(const LayerFace& face, const Typesetter& typesetter);
// The hatched back of a solid or footage.
void paint_back(const LayerFace& face);

} // namespace minihost::preview
