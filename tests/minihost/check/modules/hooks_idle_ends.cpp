// Its idle hook never returns.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override {
        for (volatile bool forever = true; forever;) {
        }
        return 0;
    }
};
PLUGIN_IS(Broken)
