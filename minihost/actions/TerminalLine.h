// A line of standard error that is written again and again. Does nothing if that is not a terminal.

#pragma once

#include <string>

namespace minihost {

class TerminalLine {
  public:
    TerminalLine();
    ~TerminalLine() { erase(); }
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;

    bool is_on_terminal() const { return _is_terminal; }
    // Long text is truncated.
    void show(const std::string& text);
    void erase();

  private:
    const bool _is_terminal;
    bool _is_shown = false;
};

} // namespace minihost
