#include "minihost/actions/TerminalLine.h"

#include <cstdio>
#include <unistd.h>

namespace minihost {

TerminalLine::TerminalLine() : _is_terminal(::isatty(STDERR_FILENO) != 0) {}

void TerminalLine::show(const std::string& text) {
    if (!_is_terminal) return;
    std::fprintf(stderr, "\r\033[K%.150s", text.c_str());
    std::fflush(stderr);
    _is_shown = true;
}

void TerminalLine::erase() {
    if (_is_shown) std::fputs("\r\033[K", stderr);
    _is_shown = false;
}

} // namespace minihost
