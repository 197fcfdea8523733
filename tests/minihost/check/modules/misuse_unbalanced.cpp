// Ends an undo group that it has not started.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override {
        const Utility utility;
        if (utility) utility->AEGP_EndUndoGroup();
        return 0;
    }
};
PLUGIN_IS(Broken)
