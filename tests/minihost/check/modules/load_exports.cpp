// Exports a symbol of its own.

#include "plugin.h"

EXPORTED int stray() {
    return 0;
}
PLUGIN_IS(Plugin)
