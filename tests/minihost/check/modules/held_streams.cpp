// Never disposes of a stream.

#include "plugin.h"

struct Broken : Plugin {
    void dispose(const Streams&, AEGP_StreamRefH) override {}
};
PLUGIN_IS(Broken)
