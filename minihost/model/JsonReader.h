// Scene JSON, parsed member by member and layer by layer, so that a large scene is never in memory
// as one tree.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace minihost {

struct JsonValue {
    enum class Type { Null, Boolean, Number, String, Array, Object };
    Type type = Type::Null;
    double number = 0; // a boolean is 0 or 1
    std::string text;
    std::string key;              // of a member of an object
    std::vector<JsonValue> items; // elements or members, in the order of the text

    bool is(Type wanted) const { return type == wanted; }
};

// Receives the values of a scene. Exceptions pass through parse_scene_json().
class SceneJsonHandler {
  public:
    virtual ~SceneJsonHandler() = default;
    // Called before the value of each member of the root object is parsed.
    virtual void on_key(const std::string& key) = 0;
    // A member of the root object other than "layers".
    virtual void on_member(const std::string& key, const JsonValue& value) = 0;
    // An element of "layers"; they come in order.
    virtual void on_layer(const JsonValue& value) = 0;
    // The root is not an object (empty key), or "layers" is not an array. Must throw.
    virtual void on_wrong_type(const std::string& key) = 0;
};

// Line and column count from 1; the column counts characters.
struct JsonSyntaxError {
    std::size_t line, column;
    std::string cause;
};

// Parses UTF-8 text. Throws JsonSyntaxError.
void parse_scene_json(std::string_view text, SceneJsonHandler& handler);

} // namespace minihost
