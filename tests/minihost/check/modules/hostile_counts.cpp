// Allocates memory for as many layers as the host reports.

#include "plugin.h"

#include <vector>

struct Broken : Plugin {
    A_Err arrange_layers(AEGP_CompH comp) override {
        const Layers layers;
        A_long count = 0;
        if (!layers || layers->AEGP_GetCompNumLayers(comp, &count)) return 1;
        std::vector<AEGP_LayerH> room;
        room.reserve(static_cast<std::size_t>(count));
        return Plugin::arrange_layers(comp);
    }
};
PLUGIN_IS(Broken)
