// Its command crashes.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    A_Err on_command() override { std::abort(); }
};
PLUGIN_IS(Broken)
