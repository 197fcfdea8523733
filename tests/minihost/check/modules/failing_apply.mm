// Leaves its undo group open when its button is pressed and a call fails, except for a missing
// suite.

#include "dialog.h"

struct Broken : DialogPlugin {
    void on_press() override {
        const AEGP_CompH comp = active_comp();
        const Utility utility;
        if (!comp || !utility || utility->AEGP_StartUndoGroup("Small")) return;
        if (arrange_layers(comp) == 4) return;
        utility->AEGP_EndUndoGroup();
    }
};
PLUGIN_IS(Broken)
