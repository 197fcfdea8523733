// The host's interface colours by selector, dark and light.

#pragma once

#include "sdk/Host.h"

#include <optional>
#include <string_view>

namespace minihost {

enum class Palette { Dark, Light };

std::optional<Palette> palette_of_name(std::string_view name);

// Selectors that no control is known to use get a grey.
PF_App_Color interface_color(Palette palette, PF_App_ColorType selector);

} // namespace minihost
