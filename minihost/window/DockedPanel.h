// A panel in the window's dock: the view that the plug-in fills stands there while it is shown.

#pragma once

#include "minihost/suites/Panels.h"

#ifdef __OBJC__
@class Desk;
#else
class Desk;
#endif

namespace minihost {

// The desk lives longer.
std::unique_ptr<PanelView> make_docked_panel(Desk* desk);

} // namespace minihost
