// What a number field makes of a text, and which text it shows for a number.

#pragma once

#include <cstddef>

namespace adm {

// The longest text that float_to_text makes, its end with it.
constexpr std::size_t most_number_text = 48;

// The number at the beginning of the text, as strtod reads it; what follows is passed over. Beyond
// what a float holds the value is infinite. False, and the value untouched, without a number.
bool text_to_float(const char* text, float* value);

// The same for a whole number, as strtol reads it in base 10; beyond what an int holds, the nearest
// one.
bool text_to_int(const char* text, int* value);

// Six digits after the point, less the zeros at their end. Always true.
bool float_to_text(float value, char* text);

} // namespace adm
