// The log of the plug-in's calls: one JSON object a line, in the order in which the calls began.

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
    // Receives each line with its newline.
    using Sink = std::function<void(const std::string&)>;

    void set_sink(Sink sink) { _sink = std::move(sink); }
    bool is_on() const { return static_cast<bool>(_sink); }

    // Returns the call's number, for end(); `arguments` is a JSON object. Calls nest, as the host
    // may enter the plug-in during one: a line is written when all before it are complete.
    std::size_t begin(const CallName& name, const std::string& arguments);
    void end(std::size_t call, std::int32_t result);

  private:
    struct Line {
        std::string text;
        bool complete = false;
    };
    Sink _sink;
    std::deque<Line> _pending;
    std::size_t _written = 0;
};

} // namespace minihost
