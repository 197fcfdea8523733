// A line of standard error that is written over again and again; nothing at all where that is no
// terminal.

#pragma once

#include <string>

namespace minihost {

class TerminalLine {
  public:
    TerminalLine();
    ~TerminalLine() { wipe(); }
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;

    bool is_on_terminal() const { return _is_terminal; }
    // Cut so that it stays a line on most terminals.
    void show(const std::string& text);
    void wipe();

  private:
    const bool _is_terminal;
    bool _is_shown = false;
};

} // namespace minihost
