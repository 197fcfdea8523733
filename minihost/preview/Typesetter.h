// Lines of text as outlines, so that names can be laid onto layers in perspective.

#pragma once

#include "minihost/preview/Canvas.h"

#include <memory>
#include <string_view>

namespace minihost::preview {

// A line of text from (0, 0), its top left corner, at the size `Lettering::size`.
struct TextLine {
    Outline outline;
    double width = 0, height = 0;
};

class Lettering {
  public:
    // Height of the type, in units of the outlines.
    static constexpr double size = 100;

    Lettering();
    ~Lettering();

    // Text wider than `room` is cut and ends in an ellipsis. Any bytes are taken as text.
    TextLine line(std::string_view text, double room, bool bold = false) const;

  private:
    struct Tools;
    std::unique_ptr<Tools> _tools;
};

// A part of a line of text whose points are moved: p goes to map(p).
template <typename Map>
Outline mapped(const Outline& outline, Map map) {
    Outline moved = outline;
    for (Point& p : moved.points) p = map(p);
    return moved;
}

} // namespace minihost::preview
