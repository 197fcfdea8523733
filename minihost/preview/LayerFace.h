// What is drawn on a layer by its kind: a card, a small landscape for a photograph, letters,
// a shape, the hatched back.

#pragma once

#include "minihost/preview/PreviewColors.h"
#include "minihost/preview/Typesetter.h"

namespace minihost::preview {

// A layer's face while it is painted: u and v go from 0 to 1 across and down its rectangle.
class Face {
  public:
    Face(Canvas& canvas, const Plan& plan, const Item& item);

    Canvas& canvas;
    const Plan& plan;
    const Item& item;
    Tone tone;
    // Its smaller side as it is seen, in points; 0 where it cannot carry detail.
    double extent = 0;

    Point at(double u, double v) const { return item.facet.at(u, v); }
    Outline rectangle(double u0, double v0, double u1, double v1) const;
    Outline ellipse(double u, double v, double across, double down) const;
    // A blend from the height v0 to v1.
    Shade blend(double v0, const Colour& c0, double v1, const Colour& c1) const;
    Outline whole() const { return polygon_outline(item.polygon); }
    // Whether type of a height in the layer's pixels can be read at (u, v).
    bool readable(double height, double u, double v) const;
    // A line of text scaled by `scale`, its top left corner at (x, y) in the layer's pixels.
    Outline text(const TextLine& line, double x, double y, double scale) const;
};

void paint_card(const Face& face);
void paint_photo(const Face& face);
void paint_shape(const Face& face);
void paint_letters(const Face& face, const Lettering& lettering);
void paint_back(const Face& face);

} // namespace minihost::preview
