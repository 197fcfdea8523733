// The calendar clock of this program and its modules, which can be stopped so that two runs have
// the same time.

#pragma once

#include <ctime>

namespace minihost {

// Clocks that only measure go on.
void stop_clock(std::time_t seconds);

} // namespace minihost
