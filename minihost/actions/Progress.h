// Shows the progress of whatever takes more than a second, on a terminal.

#pragma once

#include "minihost/actions/TerminalLine.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace minihost {

class Progress {
  public:
    void start(std::string what);
    // Cheap enough to call for every one of `count`.
    void show(std::size_t count, const char* noun);
    // Erases the line.
    void stop() { _line.erase(); }

  private:
    using Clock = std::chrono::steady_clock;
    TerminalLine _line;
    std::string _what;
    Clock::time_point _next_look = Clock::now();
};

} // namespace minihost
