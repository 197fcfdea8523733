// Uses a stream after it has disposed of it.

#include "plugin.h"

struct Broken : Plugin {
    void dispose(const Streams& streams, AEGP_StreamRefH stream) override {
        streams->AEGP_DisposeStream(stream);
        AEGP_StreamValue value{stream, {}};
        streams->AEGP_SetStreamValue(plugin_id, stream, &value);
    }
};
PLUGIN_IS(Broken)
