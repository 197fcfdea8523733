// Moves layers to another position in every run.

#include "plugin.h"

#include <unistd.h>

struct Broken : Plugin {
    AEGP_ThreeDVal position() override { return {static_cast<double>(::getpid()), 0, 0}; }
};
PLUGIN_IS(Broken)
