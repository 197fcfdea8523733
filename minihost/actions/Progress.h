// Shows on a terminal how far something has come that takes more than a second.

#pragma once

#include "minihost/actions/TerminalLine.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace minihost {

class Progress {
  public:
    void start(std::string what);
    // So many of something are done. Cheap enough to be called for each.
    void show(std::size_t count, const char* of_what);
    // Wipes the line away.
    void stop() { _line.wipe(); }

  private:
    using Clock = std::chrono::steady_clock;
    TerminalLine _line;
    std::string _what;
    Clock::time_point _next_look = Clock::now();
};

} // namespace minihost
