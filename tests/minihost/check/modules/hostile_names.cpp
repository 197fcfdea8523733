// Keeps a layer's name where there is room for a short one.

#include "plugin.h"

#include <array>

struct Broken : Plugin {
    void take(const A_char* name, A_long, A_FpLong) override {
        for (std::size_t i = 0; name[i]; ++i) shown.at(i) = name[i];
    }
    std::array<char, 64> shown{};
};
PLUGIN_IS(Broken)
