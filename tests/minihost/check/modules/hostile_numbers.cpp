// Is sure that a position is a number.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    void take(const A_char*, A_long, A_FpLong x) override {
        if (x != x) std::abort();
    }
};
PLUGIN_IS(Broken)
