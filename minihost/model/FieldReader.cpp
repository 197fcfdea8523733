#include "minihost/model/FieldReader.h"

#include <charconv>
#include <cmath>

namespace minihost {

namespace {

std::string to_text(double number) {
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
    const std::string before = parent ? parent->text() : "";
    if (index >= 0) return before + "[" + std::to_string(index) + "]";
    if (before.empty()) return std::string(name);
    return before + "." + std::string(name);
}

void reject(const FieldPath& path, std::string cause) {
    throw FieldError{path.text(), std::move(cause)};
}

double read_number(const JsonValue& value, const FieldPath& path, double min, double max) {
    if (!value.is(JsonValue::Type::Number)) reject(path, "must be a number");
    const double number = value.number;
    if (!std::isfinite(number)) reject(path, "must be a finite number");
    if (number < min || number > max)
        reject(path,
               "must be from " + to_text(min) + " to " + to_text(max) + ", not " + to_text(number));
    return number;
}

int read_integer(const JsonValue& value, const FieldPath& path, int min, int max) {
    if (!value.is(JsonValue::Type::Number)) reject(path, "must be a whole number");
    const double number = value.number;
    if (!(number >= min && number <= max) || number != std::floor(number))
        reject(path, "must be a whole number from " + std::to_string(min) + " to " +
                         std::to_string(max) + ", not " + to_text(number));
    return static_cast<int>(number);
}

bool read_boolean(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::Boolean)) reject(path, "must be true or false");
    return value.number != 0;
}

const std::string& read_text(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::String)) reject(path, "must be a text");
    if (value.text.find('\0') != std::string::npos) reject(path, "must not hold a zero character");
    return value.text;
}

void require_array(const JsonValue& value, const FieldPath& path) {
    if (!value.is(JsonValue::Type::Array)) reject(path, "must be an array");
}

Vec3 read_vector(const JsonValue& value, const FieldPath& path) {
    Vec3 numbers{};
    std::size_t count = 0;
    if (value.is(JsonValue::Type::Array))
        for (const JsonValue& element : value.items) {
            if (count < 3) numbers[count] = read_number(element, element_of(path, count));
            ++count;
        }
    if (count != 3) reject(path, "must be an array of three numbers");
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
    if (!good) reject(path, "must be a colour such as \"#c04040\"");
    return {parts[0], parts[1], parts[2]};
}

} // namespace minihost
