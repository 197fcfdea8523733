// Starts an undo group and leaves it open.

#include "plugin.h"

struct Broken : Plugin {
    A_Err arrange() override {
        const Utility utility;
        return utility ? utility->AEGP_StartUndoGroup("Open") : 1;
    }
};
PLUGIN_IS(Broken)
