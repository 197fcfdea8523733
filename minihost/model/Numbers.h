// Numbers read from text and written in it.

#pragma once

#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
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

// "1 layer", "3 layers".
inline std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace minihost
