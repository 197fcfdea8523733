// Text from one encoding to another. Inside, text is UTF-8 that is valid.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace encodings {

enum class Encoding { ascii, utf8, iso_latin1, mac_roman };

// Valid: shortest form, no surrogates, nothing above U+10FFFF.
bool is_utf8(std::string_view bytes);
// `text`, with U+FFFD for each byte that belongs to no character.
std::string repaired_utf8(std::string_view text);

// UTF-8 of the bytes; nothing when they are not valid in the encoding.
std::optional<std::string> decode(std::string_view bytes, Encoding encoding);
// Bytes in the encoding; nothing when it lacks a character of the text.
std::optional<std::string> encode(std::string_view text, Encoding encoding);

// The character at `at`, which is moved behind it. Text that is not UTF-8 gives U+FFFD byte by
// byte.
char32_t next_character(std::string_view text, size_t& at);
void append_character(std::string& text, char32_t character);

size_t utf16_length(std::string_view text);
std::u16string to_utf16(std::string_view text);
// A surrogate without its other half becomes U+FFFD.
std::string from_utf16(std::u16string_view units);

} // namespace encodings
