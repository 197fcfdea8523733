// Does nothing wrong.

#include "plugin.h"

PLUGIN_IS(Plugin)
