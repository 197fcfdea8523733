// Copies a layer's name into a buffer for short names.

#include "plugin.h"

#include <array>

struct Broken : Plugin {
    void on_inspected(const A_char* name, A_long, A_FpLong) override {
        for (std::size_t i = 0; name[i]; ++i) shown.at(i) = name[i];
    }
    std::array<char, 64> shown{};
};
PLUGIN_IS(Broken)
