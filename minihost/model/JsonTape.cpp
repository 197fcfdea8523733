#include "minihost/model/JsonTape.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace minihost {

JsonTape::Node& JsonTape::append(Type type, std::string_view key) {
    if (_used == _nodes.size()) _nodes.emplace_back();
    Node& node = _nodes[_used++];
    node.type = type;
    node.number = 0;
    node.end = _used;
    node.key = key;
    node.text.clear();
    return node;
}

namespace {

using Type = JsonTape::Type;

JsonSyntaxError syntax_error(std::string_view text, std::size_t position, std::string cause) {
    // The reader counts what it has taken, the offending character with it.
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

// Cuts the events of the library's reader into pieces: one tape for each member of the root, and
// for each layer.
class Cutter {
  public:
    using string_t = std::string;
    using binary_t = nlohmann::json::binary_t;

    Cutter(std::string_view text, SceneJsonSink& sink) : _text(text), _sink(sink) {}

    bool null() { return scalar(Type::Null, 0); }
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
        append(Type::String).text = value;
        return done();
    }
    bool key(string_t& key) {
        if (at_root() && _open.empty()) {
            _sink.member(key);
            _member = key;
        }
        _key = key;
        return true;
    }
    bool start_object(std::size_t) {
        if (_state == State::Outside) {
            _state = State::Root;
            return true;
        }
        return start(Type::Object);
    }
    bool start_array(std::size_t) {
        if (at_root() && _open.empty() && _member == "layers") {
            _state = State::Layers;
            return true;
        }
        return start(Type::Array);
    }
    bool end_object() {
        if (at_root() && _open.empty()) return true;
        return end();
    }
    bool end_array() {
        if (_state == State::Layers && _open.empty()) {
            _state = State::Root;
            return true;
        }
        return end();
    }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) {
        throw syntax_error(_text, position, error.what());
    }

  private:
    enum class State { Outside, Root, Layers };
    bool at_root() const { return _state == State::Root; }

    JsonTape::Node& append(Type type) {
        if (_state == State::Outside) _sink.misshapen("");
        if (at_root() && _open.empty() && _member == "layers") _sink.misshapen(_member);
        const bool in_object = !_open.empty() && _tape.node(_open.back()).type == Type::Object;
        return _tape.append(type, in_object ? std::string_view(_key) : std::string_view());
    }
    bool scalar(Type type, double number) {
        append(type).number = number;
        return done();
    }
    bool start(Type type) {
        append(type);
        _open.push_back(_tape.size() - 1);
        return true;
    }
    bool end() {
        _tape.node(_open.back()).end = _tape.size();
        _open.pop_back();
        return done();
    }
    // A value is complete: on the outermost level it goes to the sink.
    bool done() {
        if (!_open.empty()) return true;
        if (at_root())
            _sink.value(_member, JsonValue(_tape));
        else
            _sink.layer(_layers++, JsonValue(_tape));
        _tape.clear();
        return true;
    }

    std::string_view _text;
    SceneJsonSink& _sink;
    State _state = State::Outside;
    JsonTape _tape;
    std::vector<std::size_t> _open; // the arrays and objects on the tape that go on
    std::string _member, _key;
    std::size_t _layers = 0;
};

} // namespace

void parse_scene_json(std::string_view text, SceneJsonSink& sink) {
    Cutter cutter(text, sink);
    nlohmann::json::sax_parse(text.begin(), text.end(), &cutter);
}

} // namespace minihost
