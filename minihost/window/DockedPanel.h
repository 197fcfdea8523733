// The host's panel docked in the main window.

#pragma once

#include "minihost/suites/Panels.h"

@class MainView;

namespace minihost {

// Empty and hidden; the main view must outlive it.
std::unique_ptr<PanelView> make_docked_panel(MainView* main_view);

} // namespace minihost
