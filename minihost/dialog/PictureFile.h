// Pictures of dialogs, written as PNG.

#pragma once

#include "minihost/dialog/Panel.h"

#include <string>

namespace minihost {

// The bytes of a PNG file of a picture that is not empty. Throws std::runtime_error when memory
// does not suffice.
std::string encode_png(const Picture& picture);

} // namespace minihost
