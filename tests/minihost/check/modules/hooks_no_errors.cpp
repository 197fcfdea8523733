// Its idle hook returns an error for no reason.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override { return 5; }
};
PLUGIN_IS(Broken)
