// Takes it for granted that a layer that was given with success is there.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    A_Err move(AEGP_LayerH layer) override {
        if (!layer) std::abort();
        return Plugin::move(layer);
    }
};
PLUGIN_IS(Broken)
