// Does nothing wrong, and has a dialog.

#include "dialog.h"

PLUGIN_IS(DialogPlugin)
