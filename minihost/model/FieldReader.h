// What reading a JSON object into a struct takes: the path for errors, and a table of fields, each
// with its name and how it is read.

#pragma once

#include "minihost/model/JsonTape.h"
#include "minihost/model/Layer.h"

#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace minihost {

// Where a value stands, as a chain on the stack; it becomes a text only when something is wrong.
struct FieldPath {
    const FieldPath* above = nullptr;
    std::string_view name; // of a member of an object
    long index = -1;       // of an element of an array

    std::string text() const; // "layers[3].source.width"
};

// A value that is not as it has to be; becomes a SceneError with the file's name.
struct FieldError {
    std::string place;
    std::string cause;
};
[[noreturn]] void refuse(const FieldPath& path, std::string cause);

// Each throws FieldError when the value is of another type or out of range; texts quote the value.
double read_number(const JsonValue& value, const FieldPath& path,
                   double least = std::numeric_limits<double>::lowest(),
                   double greatest = std::numeric_limits<double>::max());
int read_integer(const JsonValue& value, const FieldPath& path, int least, int greatest);
bool read_boolean(const JsonValue& value, const FieldPath& path);
// Of a text without zero characters.
const std::string& read_text(const JsonValue& value, const FieldPath& path);
Vec3 read_vector(const JsonValue& value, const FieldPath& path);
Color read_color(const JsonValue& value, const FieldPath& path);
void require_array(const JsonValue& value, const FieldPath& path);

template <typename Target>
struct Field {
    std::string_view name;
    void (*read)(Target&, const JsonValue&, const FieldPath&);
    bool required = false;
};

// Reads the members of an object by a table of at most 32 fields. Unknown, repeated and missing
// ones are refused. Gives the set of those that were there, a bit each in the table's order.
template <typename Target>
std::uint32_t read_fields(Target& target, const JsonValue& object, const FieldPath& path,
                          std::span<const Field<Target>> table) {
    if (!object.is(JsonValue::Type::Object)) refuse(path, "must be an object");
    std::uint32_t seen = 0;
    for (const JsonValue member : object) {
        const FieldPath place{&path, member.key(), -1};
        std::size_t index = 0;
        while (index < table.size() && table[index].name != member.key()) ++index;
        if (index == table.size()) refuse(place, "unknown field");
        const std::uint32_t bit = 1u << index;
        if (seen & bit) refuse(place, "given twice");
        seen |= bit;
        table[index].read(target, member, place);
    }
    for (std::size_t index = 0; index < table.size(); ++index)
        if (table[index].required && !(seen & (1u << index)))
            refuse({&path, table[index].name, -1}, "missing");
    return seen;
}

} // namespace minihost
