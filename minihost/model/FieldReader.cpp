#include "minihost/model/FieldReader.h"

#include <charconv>
#include <cmath>

namespace minihost {

namespace {

std::string written(double number) {
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

int hex_digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

} // namespace

std::string FieldPath::text() const {
    std::string before = above ? above->text() : "";
    if (index >= 0) return before + "[" + std::to_string(index) + "]";
    if (before.empty()) return std::string(name);
    return before + "." + std::string(name);
}

void refuse(const FieldPath& path, std::string cause) {
    throw FieldError{path.text(), std::move(cause)};
}

double read_number(const JsonValue& value, const FieldPath& path, double least, double greatest) {
    if (!value.is(JsonValue::Type::Number)) refuse(path, "must be a number");
    const double number = value.number();
    if (!std::isfinite(number)) refuse(path, "must be a finite number");
    if (number < least || number > greatest)
        refuse(path, "must be from " + written(least) + " to " + written(greatest) + ", not " +
                         written(number));
    return number;
}

int read_integer(const JsonValue& value, const FieldPath& path, int least, int greatest) {
    if (!value.is(JsonValue::Type::Number)) refuse(path, "must be a whole number");
    const double number = value.number();
    if (!(number >= least && number <= greatest) || number != std::floor(number))
        refuse(path, "must be a whole number from " + std::to_string(least) + " to " +
                         std::to_string(greatest) + ", not " + written(number));
    return static_cast<int>(number);
}

bool read_boolean(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::Boolean)) refuse(path, "must be true or false");
    return value.number() != 0;
}

const std::string& read_text(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::String)) refuse(path, "must be a text");
    if (value.text().find('\0') != std::string::npos)
        refuse(path, "must not hold a zero character");
    return value.text();
}

void require_array(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::Array)) refuse(path, "must be an array");
}

Vec3 read_vector(const JsonValue& value, const FieldPath& path) {
    Vec3 numbers{};
    std::size_t count = 0;
    if (value.is(JsonValue::Type::Array))
        for (const JsonValue element : value) {
            if (count < 3)
                numbers[count] = read_number(element, {&path, "", static_cast<long>(count)});
            ++count;
        }
    if (count != 3) refuse(path, "must be an array of three numbers");
    return numbers;
}

Color read_color(const JsonValue& value, const FieldPath& path) {
    const std::string& text = read_text(value, path);
    std::uint8_t parts[3] = {};
    bool good = text.size() == 7 && text[0] == '#';
    for (std::size_t i = 0; good && i < 3; ++i) {
        const int high = hex_digit(text[1 + 2 * i]), low = hex_digit(text[2 + 2 * i]);
        good = high >= 0 && low >= 0;
        parts[i] = static_cast<std::uint8_t>(high * 16 + low);
    }
    if (!good) refuse(path, "must be a colour such as \"#c04040\"");
    return {parts[0], parts[1], parts[2]};
}

} // namespace minihost
