// The calendar clock of this program and of all modules in it, which can be stopped: two runs that
// are to be equal have the same time.

#pragma once

#include <ctime>

namespace minihost {

// From now on the calendar clock stands at this second. Clocks that only measure go on.
void stop_clock(std::time_t seconds);

} // namespace minihost
