// Forgets its undo group when its button is pressed and a call fails; a missing suite it minds.

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
