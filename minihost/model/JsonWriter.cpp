#include "minihost/model/JsonWriter.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace minihost {

namespace {

// The length of the UTF-8 character at `at` in bytes; 0 for invalid bytes.
std::size_t character_length(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) -> unsigned {
        return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0u;
    };
    const auto follows = [&](std::size_t i) { return (byte(i) & 0xC0) == 0x80; };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return follows(1) ? 2 : 0;
    if (lead >= 0xE0 && lead < 0xF0) {
        const bool overlong = lead == 0xE0 && byte(1) < 0xA0;
        const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
        return follows(1) && follows(2) && !overlong && !surrogate ? 3 : 0;
    }
    if (lead >= 0xF0 && lead < 0xF5) {
        const bool overlong = lead == 0xF0 && byte(1) < 0x90;
        const bool too_great = lead == 0xF4 && byte(1) >= 0x90;
        return follows(1) && follows(2) && follows(3) && !overlong && !too_great ? 4 : 0;
    }
    return 0;
}

void append_escaped(std::string& out, char c) {
    constexpr std::string_view named = "\"\\\n\r\t", names = "\"\\nrt";
    char code[8];
    if (const std::size_t found = named.find(c); found != named.npos)
        out += {'\\', names[found]};
    else if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7f)
        out += c;
    else
        out.append(code, std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c)));
}

void append_text(std::string& out, std::string_view text) {
    out += '"';
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = character_length(text, at);
        if (length == 1)
            append_escaped(out, text[at]);
        else if (length == 0)
            out += "\xEF\xBF\xBD";
        else
            out.append(text, at, length);
        at += length ? length : 1;
    }
    out += '"';
}

} // namespace

JsonWriter& JsonWriter::open(char bracket) {
    comma();
    _out += bracket;
    _comma = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
    _out += bracket;
    _comma = true;
    return *this;
}

void JsonWriter::comma() {
    if (_comma) _out += ", ";
    _comma = true;
}

JsonWriter& JsonWriter::line(int indent) {
    if (_comma) _out += ',';
    _out += '\n';
    _out.append(static_cast<std::size_t>(indent), ' ');
    _comma = false;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
    comma();
    append_text(_out, name);
    _out += ": ";
    _comma = false;
    return *this;
}

JsonWriter& JsonWriter::value(std::string_view text) {
    comma();
    append_text(_out, text);
    return *this;
}

JsonWriter& JsonWriter::value(double number) {
    if (!std::isfinite(number)) return null();
    comma();
    // JSON parsers read "-0" as the integer 0.
    if (number == 0 && std::signbit(number)) {
        _out += "-0.0";
        return *this;
    }
    char buffer[32];
    _out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr);
    return *this;
}

JsonWriter& JsonWriter::value(std::int64_t number) {
    comma();
    _out += std::to_string(number);
    return *this;
}

JsonWriter& JsonWriter::value(bool flag) {
    comma();
    _out += flag ? "true" : "false";
    return *this;
}

JsonWriter& JsonWriter::null() {
    comma();
    _out += "null";
    return *this;
}

} // namespace minihost
