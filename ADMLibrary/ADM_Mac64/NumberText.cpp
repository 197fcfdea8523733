#include "ADMLibrary/ADM_Mac64/NumberText.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace adm {

bool text_to_float(const char* text, float* value) {
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    if (end == text) return false;
    *value = static_cast<float>(number); // infinite where a float ends
    return true;
}

bool text_to_int(const char* text, int* value) {
    char* end = nullptr;
    const long number = std::strtol(text, &end, 10);
    if (end == text) return false;
    *value = static_cast<int>(
        std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    return true;
}

bool float_to_text(float value, char* text) {
    std::sprintf(text, "%f", static_cast<double>(value));
    const std::size_t length = std::strlen(text);
    if (length == 0 || text[length - 1] != '0') return true;
    std::size_t last = length - 1;
    while (last > 0 && text[last] == '0') --last;
    if (text[last] == '.') {
        text[last] = '\0';
        return true;
    }
    std::size_t before_digits = last;
    while (before_digits > 0 && std::isdigit(static_cast<unsigned char>(text[before_digits])))
        --before_digits;
    if (text[before_digits] == '.') text[last + 1] = '\0';
    return true;
}

} // namespace adm
