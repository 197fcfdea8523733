// Assumes that the top layer stays the same while it works.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    A_Err arrange_layers(AEGP_CompH comp) override {
        const AEGP_LayerH first = top(comp);
        const A_Err error = Plugin::arrange_layers(comp);
        const AEGP_LayerH last = top(comp);
        if (first && last && first != last) std::abort();
        return error;
    }
    static AEGP_LayerH top(AEGP_CompH comp) {
        const Layers layers;
        AEGP_LayerH layer = nullptr;
        return layers && !layers->AEGP_GetCompLayerByIndex(comp, 0, &layer) ? layer : nullptr;
    }
};
PLUGIN_IS(Broken)
