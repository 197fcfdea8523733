// Leaks an open file at every load.

#include "plugin.h"

#include <fcntl.h>

struct Broken : Plugin {
    A_Err on_entry() override { return ::open("/dev/null", O_RDONLY) < 0; }
};
PLUGIN_IS(Broken)
