// Divides by the width of a layer's source.

#include "plugin.h"

struct Broken : Plugin {
    void on_inspected(const A_char*, A_long width, A_FpLong) override { step = 1000 / width; }
    volatile A_long step = 0;
};
PLUGIN_IS(Broken)
