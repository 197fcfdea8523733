// Shows on a terminal how far something has come that takes more than a second.

#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace minihost {

class Progress {
  public:
    // Standard error, if it is a terminal; nothing is ever shown otherwise.
    Progress();
    ~Progress() { stop(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void start(std::string what);
    // So many of something are done. Cheap enough to be called for each.
    void show(std::size_t count, const char* of_what);
    // Wipes the line away.
    void stop();

  private:
    using Clock = std::chrono::steady_clock;
    bool _is_terminal;
    bool _is_shown = false;
    std::string _what;
    Clock::time_point _next_look;
};

} // namespace minihost
