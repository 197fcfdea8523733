// A JSON value as one flat row of nodes in the order of the text, reused from value to value: what
// a reader of many like objects needs, without the cost of a tree.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace minihost {

class JsonTape {
  public:
    enum class Type { Null, Boolean, Number, String, Array, Object };
    struct Node {
        Type type = Type::Null;
        double number = 0;   // a boolean is 0 or 1
        std::size_t end = 0; // one past the last node of what it holds
        std::string key;     // in an object
        std::string text;
    };

    void clear() { _used = 0; }
    std::size_t size() const { return _used; }
    const Node& node(std::size_t index) const { return _nodes[index]; }
    Node& node(std::size_t index) { return _nodes[index]; }
    // Appends a node that holds nothing; its texts keep their memory.
    Node& append(Type type, std::string_view key);

  private:
    std::vector<Node> _nodes;
    std::size_t _used = 0;
};

// One value on a tape; it lives as long as the tape is not cleared. The members of an array or
// object are walked with a range-for.
class JsonValue {
  public:
    using Type = JsonTape::Type;
    explicit JsonValue(const JsonTape& tape, std::size_t index = 0) : _tape(&tape), _index(index) {}

    Type type() const { return node().type; }
    bool is(Type type) const { return node().type == type; }
    double number() const { return node().number; }
    const std::string& text() const { return node().text; }
    const std::string& key() const { return node().key; }

    class Iterator {
      public:
        Iterator(const JsonTape& tape, std::size_t index) : _tape(&tape), _index(index) {}
        JsonValue operator*() const { return JsonValue(*_tape, _index); }
        Iterator& operator++() {
            _index = _tape->node(_index).end;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return _index != other._index; }

      private:
        const JsonTape* _tape;
        std::size_t _index;
    };
    Iterator begin() const { return {*_tape, _index + 1}; }
    Iterator end() const { return {*_tape, node().end}; }

  private:
    const JsonTape::Node& node() const { return _tape->node(_index); }
    const JsonTape* _tape;
    std::size_t _index;
};

// Gets the values of a text piece by piece. What it throws goes through parse_scene_json().
class SceneJsonSink {
  public:
    virtual ~SceneJsonSink() = default;
    // A member of the root object is about to come.
    virtual void member(const std::string& key) = 0;
    // The member's value; for "layers", each element instead, in order.
    virtual void value(const std::string& key, const JsonValue& value) = 0;
    virtual void layer(std::size_t index, const JsonValue& value) = 0;
    // "layers" is not an array, or the root is not an object.
    virtual void misshapen(const std::string& key) = 0;
};

// Line and column from 1; the column counts characters.
struct JsonSyntaxError {
    std::size_t line, column;
    std::string cause;
};

// Reads a text (UTF-8) into the sink. Throws JsonSyntaxError.
void parse_scene_json(std::string_view text, SceneJsonSink& sink);

} // namespace minihost
