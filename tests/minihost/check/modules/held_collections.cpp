// Never disposes of a collection.

#include "plugin.h"

struct Broken : Plugin {
    void dispose(const Collections&, AEGP_CollectionH) override {}
};
PLUGIN_IS(Broken)
