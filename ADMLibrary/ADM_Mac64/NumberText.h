// Conversions between the numbers of number fields and their texts.

#pragma once

#include <cstddef>

namespace adm {

// The longest text that float_to_text makes, with its terminating zero.
constexpr std::size_t max_number_text = 48;

// The number at the beginning of the text, as strtod reads it; the rest is ignored. Infinite beyond
// the range of a float. Without a number, returns false and leaves the value untouched.
bool text_to_float(const char* text, float* value);

// The same for an integer, as strtol reads it in base 10; clamped to the range of an int.
bool text_to_int(const char* text, int* value);

// Six decimals, without trailing zeros.
void float_to_text(float value, char* text);

} // namespace adm
