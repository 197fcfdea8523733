// Numbers in text.

#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace minihost {

// The number that the whole text is; nothing for any other text. Integers may have a base.
template <typename Number, typename... Base>
std::optional<Number> parse_number(std::string_view text, Base... base) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base...);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

} // namespace minihost
