// Assumes that a position is finite.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    void on_inspected(const A_char*, A_long, A_FpLong x) override {
        if (x != x) std::abort();
    }
};
PLUGIN_IS(Broken)
