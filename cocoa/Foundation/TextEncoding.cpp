#include "TextEncoding.h"

#include <algorithm>
#include <array>

namespace text_encoding {
namespace {

constexpr char32_t replacement = 0xFFFD;

// The upper half of Mac Roman as of 1998, with the euro sign at 0xDB.
constexpr std::array<char16_t, 128> mac_roman_upper = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3,
    0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3,
    0x00A7, 0x2022, 0x00B6, 0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D,
    0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE,
    0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7};

// The number of bytes of the character that starts at `at`; 0 when they are not UTF-8.
size_t read_character(std::string_view text, size_t at, char32_t& character) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) {
        character = lead;
        return 1;
    }
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - at < length) return 0;
    character = lead & (0x7F >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) return 0;
        character = character << 6 | (byte(at + i) & 0x3F);
    }
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    return character < least[length] || character > 0x10FFFF || surrogate ? 0 : length;
}

} // namespace

bool is_utf8(std::string_view bytes) {
    char32_t character;
    for (size_t at = 0; at < bytes.size();) {
        const size_t length = read_character(bytes, at, character);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

char32_t next_character(std::string_view text, size_t& at) {
    char32_t character;
    const size_t length = read_character(text, at, character);
    at += length ? length : 1;
    return length ? character : replacement;
}

void append_character(std::string& text, char32_t c) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (c < 0x80) return put(c);
    if (c < 0x800) {
        put(0xC0 | c >> 6);
    } else {
        if (c < 0x10000) {
            put(0xE0 | c >> 12);
        } else {
            put(0xF0 | c >> 18);
            put(0x80 | (c >> 12 & 0x3F));
        }
        put(0x80 | (c >> 6 & 0x3F));
    }
    put(0x80 | (c & 0x3F));
}

std::string repaired_utf8(std::string_view text) {
    std::string repaired;
    for (size_t at = 0; at < text.size();) append_character(repaired, next_character(text, at));
    return repaired;
}

std::string from_mac_roman(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (unsigned char byte : bytes)
        append_character(text, byte < 0x80 ? byte : mac_roman_upper[byte - 0x80]);
    return text;
}

std::optional<std::string> to_mac_roman(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (size_t at = 0; at < text.size();) {
        const char32_t character = next_character(text, at);
        if (character < 0x80) {
            bytes += static_cast<char>(character);
            continue;
        }
        const auto found = std::find(mac_roman_upper.begin(), mac_roman_upper.end(), character);
        if (found == mac_roman_upper.end()) return std::nullopt;
        bytes += static_cast<char>(0x80 + (found - mac_roman_upper.begin()));
    }
    return bytes;
}

size_t utf16_length(std::string_view text) {
    size_t units = 0;
    for (size_t at = 0; at < text.size();) units += next_character(text, at) >= 0x10000 ? 2 : 1;
    return units;
}

std::u16string to_utf16(std::string_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (size_t at = 0; at < text.size();) {
        const char32_t c = next_character(text, at);
        if (c >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(c);
        }
    }
    return units;
}

std::string from_utf16(std::u16string_view units) {
    std::string text;
    text.reserve(units.size());
    for (size_t i = 0; i < units.size(); ++i) {
        const char32_t unit = units[i];
        const bool high = unit >= 0xD800 && unit < 0xDC00, low = unit >= 0xDC00 && unit < 0xE000;
        if (high && i + 1 < units.size() && units[i + 1] >= 0xDC00 && units[i + 1] < 0xE000)
            append_character(text, 0x10000 + ((unit - 0xD800) << 10) + (units[++i] - 0xDC00));
        else
            append_character(text, high || low ? replacement : unit);
    }
    return text;
}

} // namespace text_encoding
