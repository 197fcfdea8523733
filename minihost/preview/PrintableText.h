// Makes any text fit to be drawn and written.

#pragma once

#include <string>
#include <string_view>

namespace minihost::preview {

// Valid UTF-8 without control characters and XML's noncharacters, whatever the bytes are.
std::string printable_text(std::string_view text);

} // namespace minihost::preview
