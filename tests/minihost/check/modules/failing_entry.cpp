// Its entry function keeps a suite when a call fails in between.

#include "careless.h"

struct Broken : Plugin {
    A_Err on_entry() override { return keep_a_suite_on_failure(); }
};
PLUGIN_IS(Broken)
