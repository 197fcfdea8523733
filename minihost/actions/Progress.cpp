#include "minihost/actions/Progress.h"

namespace minihost {

namespace {

constexpr std::size_t counts_per_look = 1024; // at the clock
constexpr auto patience = std::chrono::seconds(1);
constexpr auto between_lines = std::chrono::milliseconds(100);

} // namespace

void Progress::start(std::string what) {
    stop();
    _what = std::move(what);
    _next_look = Clock::now() + patience;
}

void Progress::show(std::size_t count, const char* noun) {
    if (!_line.is_on_terminal() || count % counts_per_look != 0) return;
    const auto now = Clock::now();
    if (now < _next_look) return;
    _next_look = now + between_lines;
    _line.show(_what + ": " + std::to_string(count) + " " + noun);
}

} // namespace minihost
