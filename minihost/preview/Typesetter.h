// Lines of text as paths, so that names can be laid onto layers in perspective.

#pragma once

#include "minihost/preview/Path.h"

#include <memory>
#include <string_view>

namespace minihost::preview {

// A line of text at the size Typesetter::size, its top left corner at (0, 0).
struct TextLine {
    Path path;
    double width = 0, height = 0;
};

class Typesetter {
  public:
    // Height of the type, in units of the path.
    static constexpr double size = 100;

    Typesetter();
    ~Typesetter();

    // Text wider than `room` is cut and ends in an ellipsis. Any bytes are accepted.
    TextLine line(std::string_view text, double room, bool bold = false) const;

  private:
    struct Pango;
    std::unique_ptr<Pango> _pango;
};

} // namespace minihost::preview
