// Leaks memory.

#include "plugin.h"

static int* volatile forgotten;

struct Broken : Plugin {
    A_Err on_idle() override {
        forgotten = new int[1000];
        forgotten = nullptr;
        return 0;
    }
};
PLUGIN_IS(Broken)
