// UTF-8, UTF-16 and Mac Roman, converted into each other.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace text_encoding {

// Valid: shortest form, no surrogates, nothing above U+10FFFF.
bool is_utf8(std::string_view bytes);
// `text`, with U+FFFD for each byte that belongs to no character.
std::string repaired_utf8(std::string_view text);

std::string from_mac_roman(std::string_view bytes);
// nullopt when the text has a character that Mac Roman lacks.
std::optional<std::string> to_mac_roman(std::string_view text);

// The character at `at`, which moves past it. Bytes that are not UTF-8 give U+FFFD, one each.
char32_t next_character(std::string_view text, size_t& at);
void append_character(std::string& text, char32_t character);

size_t utf16_length(std::string_view text);
std::u16string to_utf16(std::string_view text);
// An unpaired surrogate becomes U+FFFD.
std::string from_utf16(std::u16string_view units);

} // namespace text_encoding
