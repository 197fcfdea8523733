// Work in a child process, as it may crash or never end.

#pragma once

#include "minihost/check/MemoryFile.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace minihost {

// How far a child has got, in memory that it shares with its parent.
class ChildProgress {
  public:
    // Restarts the time limit between checkpoints. Long names are truncated.
    void checkpoint(std::string_view name);
    std::string last_checkpoint() const;
    std::uint64_t checkpoints() const { return _checkpoints; }
    // For the progress line.
    std::atomic<std::uint64_t> runs{0};

  private:
    friend class Child;
    std::atomic<std::uint64_t> _checkpoints{0};
    std::atomic<bool> _leaked{false};
    char _last_checkpoint[400] = {};
};

// The limit between checkpoints is processor time, so that a busy machine does no harm. A child
// that only waits has `waiting_factor` times as long on the clock.
struct Limits {
    static constexpr int waiting_factor = 20;
    std::chrono::milliseconds total, between_checkpoints;
};

// How much slower everything is with a sanitizer; 1 without.
extern const int sanitizer_factor;

struct ChildResult {
    enum class Kind { Done, Crashed, TimedOut };
    Kind kind = Kind::Done;
    std::string output; // of the work, if done
    std::string last_checkpoint;
    std::string cause; // of a crash or time-out
    bool leaked = false;
    std::vector<std::string> error_lines; // the last on standard error
};

// For a crash or time-out: cause, checkpoint and error lines.
std::string describe_failure(const ChildResult& result);

// A forked process. Before the fork the parent waits, up to a second, for its other threads to end.
class Child {
  public:
    using Work = std::function<std::string(ChildProgress&)>;
    // Normal calls exit() after a leak check, where a sanitizer has one; Quick is faster.
    enum class Exit { Normal, Quick };

    // Throws std::system_error.
    Child(const Work& work, Limits limits, Exit exit = Exit::Normal);
    ~Child(); // kills the process
    Child(Child&& other) = delete;

    // Waits up to this long. True when the process has ended or was killed at a limit.
    bool wait(std::chrono::milliseconds time);
    // After wait() was true.
    const ChildResult& result() const { return _result; }
    const ChildProgress& progress() const { return *_progress; }

  private:
    [[noreturn]] void work(const Work& work, Exit exit);
    void check_limits();
    std::chrono::nanoseconds processor_time() const;
    void finish(int status);
    std::vector<std::string> last_error_lines() const;

    using Clock = std::chrono::steady_clock;
    std::unique_ptr<ChildProgress, void (*)(ChildProgress*)> _progress;
    MemoryFile _output{"output"}, _errors{"errors"};
    int _process = -1, _process_file = -1;
    Limits _limits;
    Clock::time_point _start, _checkpoint_time;
    std::chrono::nanoseconds _checkpoint_processor_time{0};
    std::uint64_t _checkpoints_seen = 0;
    bool _ended = false;
    ChildResult _result;
};

ChildResult run_in_child(const Child::Work& work, Limits limits,
                         Child::Exit exit = Child::Exit::Normal);

} // namespace minihost
