// Passes a stream's handle for a layer's.

#include "plugin.h"

struct Broken : Plugin {
    void dispose(const Streams& streams, AEGP_StreamRefH stream) override {
        const Layers layers;
        A_long index = 0;
        if (layers) layers->AEGP_GetLayerIndex(reinterpret_cast<AEGP_LayerH>(stream), &index);
        streams->AEGP_DisposeStream(stream);
    }
};
PLUGIN_IS(Broken)
