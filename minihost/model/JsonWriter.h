// JSON, written piece by piece onto the end of a text. Commas come by themselves.

#pragma once

#include <cstdint>
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

    JsonWriter& value(std::string_view text); // bytes that are no UTF-8 become U+FFFD
    JsonWriter& value(const char* text) { return value(std::string_view(text)); }
    // The shortest text that reads back as the same double; null for one that is not finite.
    JsonWriter& value(double number);
    JsonWriter& value(std::int64_t number);
    JsonWriter& value(int number) { return value(static_cast<std::int64_t>(number)); }
    JsonWriter& value(std::size_t number) { return value(static_cast<std::int64_t>(number)); }
    JsonWriter& value(bool flag);
    JsonWriter& null();

    template <typename Value>
    JsonWriter& member(std::string_view name, const Value& it) {
        return key(name).value(it);
    }
    // What comes next starts on a line of its own, after so many blanks.
    JsonWriter& line(int indent);

  private:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    void comma();
    std::string& _out;
    bool _comma = false;
};

} // namespace minihost
