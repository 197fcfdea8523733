// What the benchmarks do to views, which only Objective-C can.

#pragma once

#include "minihost/dialog/Controls.h"

#include <vector>

namespace bench {

// Sends what the control with this tag, in `root` or below, sends when it has been clicked.
void send_action(NSView* root, int tag);

// A window with one of Cocoa's own controls for each of these, shown, closed and gone again.
void open_and_close_plain_controls(const std::vector<minihost::Control>& controls, double width,
                                   double height);

} // namespace bench
