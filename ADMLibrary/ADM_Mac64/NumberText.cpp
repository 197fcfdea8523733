#include "ADMLibrary/ADM_Mac64/NumberText.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace adm {

bool text_to_float(const char* text, float* value) {
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    if (end == text) return false;
    *value = static_cast<float>(number);
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

void float_to_text(float value, char* text) {
    char* end = text + std::sprintf(text, "%f", static_cast<double>(value));
    if (!std::strchr(text, '.')) return;
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
    *end = '\0';
}

} // namespace adm
