// Its entry function fails.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_entry() override { return 7; }
};
PLUGIN_IS(Broken)
