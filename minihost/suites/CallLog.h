// Every call that the plug-in makes of the host, one JSON object a line, in the order in which the
// calls were begun.

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace minihost {

struct CallName {
    const char* suite;
    int version;
    const char* call; // without "AEGP_"
};

class CallLog {
  public:
    // Gets each line, its end with it.
    using Sink = std::function<void(const std::string&)>;

    void set_sink(Sink sink) { _sink = std::move(sink); }
    bool is_on() const { return static_cast<bool>(_sink); }

    // A call begins; `arguments` is a JSON object. What it gives goes to end(). A call may make the
    // host enter the plug-in, which calls in turn: lines wait until all before them are whole.
    std::size_t begin(const CallName& name, std::string arguments);
    void end(std::size_t call, std::int32_t result);

  private:
    struct Line {
        std::string text;
        bool whole = false;
    };
    Sink _sink;
    std::deque<Line> _waiting;
    std::size_t _written = 0;
};

} // namespace minihost
