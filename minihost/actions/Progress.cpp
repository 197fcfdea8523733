#include "minihost/actions/Progress.h"

#include <cstdio>
#include <unistd.h>

namespace minihost {

namespace {

constexpr std::size_t counts_between_looks = 1024; // at the clock
constexpr auto patience = std::chrono::seconds(1);
constexpr auto between_lines = std::chrono::milliseconds(100);

} // namespace

Progress::Progress() : _is_terminal(::isatty(STDERR_FILENO) != 0), _next_look(Clock::now()) {}

void Progress::start(std::string what) {
    stop();
    _what = std::move(what);
    _next_look = Clock::now() + patience;
}

void Progress::show(std::size_t count, const char* of_what) {
    if (!_is_terminal || count % counts_between_looks != 0) return;
    const auto now = Clock::now();
    if (now < _next_look) return;
    _next_look = now + between_lines;
    _is_shown = true;
    std::fprintf(stderr, "\r\033[K%s: %zu %s", _what.c_str(), count, of_what);
    std::fflush(stderr);
}

void Progress::stop() {
    if (!_is_shown) return;
    std::fputs("\r\033[K", stderr);
    _is_shown = false;
}

} // namespace minihost
