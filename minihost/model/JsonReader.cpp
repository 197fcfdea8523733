#include "minihost/model/JsonReader.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Type = JsonValue::Type;

JsonSyntaxError syntax_error(std::string_view text, std::size_t position, std::string cause) {
    // The library counts the characters read, including the offending one.
    const std::string_view before = text.substr(0, position > 0 ? position - 1 : 0);
    const auto lines = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t start = before.rfind('\n') == before.npos ? 0 : before.rfind('\n') + 1;
    const auto characters =
        std::count_if(before.begin() + static_cast<std::ptrdiff_t>(start), before.end(),
                      [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    // "[json.exception.parse_error.101] parse error at line 1, column 2: the cause"
    for (const std::string_view head : {"] ", ": "}) {
        const std::size_t found = cause.find(head);
        if (found != cause.npos && (head == "] " || cause.starts_with("parse error at")))
            cause.erase(0, found + head.size());
    }
    return {lines + 1, static_cast<std::size_t>(characters) + 1, std::move(cause)};
}

// Builds a tree of each member of the root object and of each layer from the library's events.
class SceneJsonParser {
  public:
    using string_t = std::string;
    using binary_t = nlohmann::json::binary_t;

    SceneJsonParser(std::string_view text, SceneJsonHandler& handler)
        : _text(text), _handler(handler) {}

    bool null() { return scalar(Type::Null); }
    bool boolean(bool value) { return scalar(Type::Boolean, value ? 1 : 0); }
    bool number_integer(std::int64_t value) {
        return scalar(Type::Number, static_cast<double>(value));
    }
    bool number_unsigned(std::uint64_t value) {
        return scalar(Type::Number, static_cast<double>(value));
    }
    bool number_float(double value, const string_t&) { return scalar(Type::Number, value); }
    bool binary(binary_t&) { return false; }
    bool string(string_t& value) {
        add(Type::String).text = std::move(value);
        return finish();
    }
    bool key(string_t& key) {
        if (_open.empty()) {
            _handler.on_key(key);
            _member = std::move(key);
        } else {
            _key = std::move(key);
        }
        return true;
    }
    bool start_object(std::size_t) {
        if (!_in_root) return _in_root = true;
        return start(Type::Object);
    }
    bool start_array(std::size_t) {
        if (is_layers_expected()) return _in_layers = true;
        return start(Type::Array);
    }
    bool end_object() { return _open.empty() || end(); }
    bool end_array() {
        if (!_open.empty()) return end();
        _in_layers = false;
        return true;
    }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) {
        throw syntax_error(_text, position, error.what());
    }

  private:
    // Whether the next value is that of "layers".
    bool is_layers_expected() const {
        return _in_root && !_in_layers && _open.empty() && _member == "layers";
    }
    JsonValue& add(Type type) {
        if (!_in_root) _handler.on_wrong_type("");
        if (is_layers_expected()) _handler.on_wrong_type(_member);
        JsonValue& value = _open.empty() ? _value : _open.back()->items.emplace_back();
        value.type = type;
        if (!_open.empty() && _open.back()->is(Type::Object)) value.key = std::move(_key);
        return value;
    }
    bool scalar(Type type, double number = 0) {
        add(type).number = number;
        return finish();
    }
    bool start(Type type) {
        JsonValue& value = add(type);
        value.items.reserve(8); // most have fewer, so that they need not be moved
        _open.push_back(&value);
        return true;
    }
    bool end() {
        _open.pop_back();
        return finish();
    }
    // A value is complete: an outermost one goes to the handler.
    bool finish() {
        if (!_open.empty()) return true;
        if (_in_layers)
            _handler.on_layer(_value);
        else
            _handler.on_member(_member, _value);
        _value = {};
        return true;
    }

    std::string_view _text;
    SceneJsonHandler& _handler;
    bool _in_root = false, _in_layers = false;
    JsonValue _value;              // of a member of the root, or a layer
    std::vector<JsonValue*> _open; // the arrays and objects in it that are not complete
    std::string _member, _key;
};

} // namespace

void parse_scene_json(std::string_view text, SceneJsonHandler& handler) {
    SceneJsonParser parser(text, handler);
    nlohmann::json::sax_parse(text.begin(), text.end(), &parser);
}

} // namespace minihost
