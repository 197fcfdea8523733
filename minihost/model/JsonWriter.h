// Appends JSON to a text piece by piece, with commas where necessary.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace minihost {

class JsonWriter {
  public:
    explicit JsonWriter(std::string& out) : _out(out) {}

    JsonWriter& begin_object() { return open('{'); }
    JsonWriter& end_object() { return close('}'); }
    JsonWriter& begin_array() { return open('['); }
    JsonWriter& end_array() { return close(']'); }
    JsonWriter& key(std::string_view name);

    JsonWriter& value(std::string_view text); // invalid UTF-8 becomes U+FFFD
    JsonWriter& value(const char* text) { return text ? value(std::string_view(text)) : null(); }
    // The shortest text that reads back exactly; null for infinities and NaN.
    JsonWriter& value(double number);
    JsonWriter& value(std::int64_t number);
    JsonWriter& value(int number) { return value(static_cast<std::int64_t>(number)); }
    JsonWriter& value(std::size_t number) { return value(static_cast<std::int64_t>(number)); }
    JsonWriter& value(bool flag);
    template <typename Value>
    JsonWriter& value(const std::optional<Value>& it) {
        return it ? value(*it) : null();
    }
    JsonWriter& null();
    template <typename Items>
    JsonWriter& array(const Items& items) {
        begin_array();
        for (const auto& it : items) value(it);
        return end_array();
    }

    template <typename Value>
    JsonWriter& member(std::string_view name, const Value& it) {
        return key(name).value(it);
    }
    // Starts a new line with so many blanks.
    JsonWriter& line(int indent);

  private:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    void comma();
    std::string& _out;
    bool _comma = false;
};

} // namespace minihost
