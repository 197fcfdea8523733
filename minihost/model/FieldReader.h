// Reads a JSON object into a struct by a table of fields: each has a name and a function. Errors
// carry the path of the value.

#pragma once

#include "minihost/model/JsonReader.h"
#include "minihost/model/Layer.h"

#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace minihost {

// The path of a value, as a chain on the stack; it becomes text only for an error.
struct FieldPath {
    const FieldPath* parent = nullptr;
    std::string_view name; // of a member of an object
    long index = -1;       // of an element of an array

    std::string text() const; // "layers[3].source.width"
};
inline FieldPath element_of(const FieldPath& array, std::size_t index) {
    return {&array, "", static_cast<long>(index)};
}

// A bad value; becomes a SceneError with the file's name.
struct FieldError {
    std::string path;
    std::string cause;
};
[[noreturn]] void reject(const FieldPath& path, std::string cause);

// Each throws FieldError for a value of another type or out of range.
double read_number(const JsonValue& value, const FieldPath& path,
                   double min = std::numeric_limits<double>::lowest(),
                   double max = std::numeric_limits<double>::max());
int read_integer(const JsonValue& value, const FieldPath& path, int min, int max);
bool read_boolean(const JsonValue& value, const FieldPath& path);
// The text must not contain a zero character.
const std::string& read_text(const JsonValue& value, const FieldPath& path);
Vec3 read_vector(const JsonValue& value, const FieldPath& path);
Color read_color(const JsonValue& value, const FieldPath& path);
void require_array(const JsonValue& value, const FieldPath& path);

template <typename Struct>
struct Field {
    std::string_view name;
    void (*read)(Struct&, const JsonValue&, const FieldPath&);
    bool required = false;
};

// Reads the members of an object by a table of at most 32 fields; rejects unknown, repeated and
// missing ones. Returns a bit for each field of the table, set if the object has it.
template <typename Struct>
std::uint32_t read_fields(Struct& result, const JsonValue& object, const FieldPath& path,
                          std::span<const Field<Struct>> table) {
    if (!object.is(JsonValue::Type::Object)) reject(path, "must be an object");
    std::uint32_t seen = 0;
    for (const JsonValue& member : object.items) {
        const FieldPath member_path{&path, member.key};
        std::size_t index = 0;
        while (index < table.size() && table[index].name != member.key) ++index;
        if (index == table.size()) reject(member_path, "unknown field");
        const std::uint32_t bit = 1u << index;
        if (seen & bit) reject(member_path, "given twice");
        seen |= bit;
        table[index].read(result, member, member_path);
    }
    for (std::size_t index = 0; index < table.size(); ++index)
        if (table[index].required && !(seen & (1u << index)))
            reject({&path, table[index].name}, "missing");
    return seen;
}

} // namespace minihost
