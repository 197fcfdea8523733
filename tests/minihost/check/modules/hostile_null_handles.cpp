// Assumes that a handle from a successful call is not null.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    A_Err move(AEGP_LayerH layer) override {
        if (!layer) std::abort();
        return Plugin::move(layer);
    }
};
PLUGIN_IS(Broken)
