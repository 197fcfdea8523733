// Throws out of its idle hook.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override { throw 1; }
};
PLUGIN_IS(Broken)
