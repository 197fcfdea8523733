// Its death hook keeps a suite when a call fails in between.

#include "careless.h"

struct Broken : Plugin {
    A_Err on_death() override { return keep_a_suite_on_failure(); }
};
PLUGIN_IS(Broken)
