// Work that may crash or never end, done in a process of its own: what came of it, where it was
// last, and what it said on standard error.

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

// Memory that a child and its parent share: where the child is.
class Place {
  public:
    // A step begins; the time limit of steps starts anew. Longer texts are cut.
    void enter(std::string_view step);
    std::string step() const;
    std::uint64_t steps() const { return _steps; }
    // What comes of the work as far as it has got, for the progress line: runs done.
    std::atomic<std::uint64_t> runs{0};

  private:
    friend class Child;
    std::atomic<std::uint64_t> _steps{0};
    std::atomic<bool> _leaked{false};
    char _step[400] = {};
};

// How long a child may take: for all of it by the clock, and from one step to the next of the
// processor's time, so that a machine that is busy with something else does no harm. A step that
// waits and does nothing gets `times_waiting` of that by the clock.
struct Limits {
    static constexpr int times_waiting = 20;
    std::chrono::milliseconds whole, step;
};

// What the sanitizers cost. 1 without them.
extern const int sanitizer_factor;

struct Ending {
    enum class Kind { Done, Crashed, TimedOut };
    Kind kind = Kind::Done;
    std::string result; // what the work gave, when it is done
    std::string step;   // where it was last
    std::string cause;  // of a crash or of a time-out, in words
    bool leaked = false;
    std::vector<std::string> said; // the last lines on standard error
};

// A process that is forked off here, once the parent's other threads have ended or made it wait for
// a second.
class Child {
  public:
    using Work = std::function<std::string(Place&)>;
    // How the process ends when its work is done: through exit, with a look for leaks where a
    // sanitizer can tell them; or at once, which is quicker.
    enum class Exit { Proper, Quick };

    // Throws std::system_error when no process can be made.
    Child(const Work& work, Limits limits, Exit exit = Exit::Proper);
    ~Child(); // ends it
    Child(Child&& other) = delete;

    // Waits so long at most. True when it is over: it ended by itself or reached a limit.
    bool wait(std::chrono::milliseconds time);
    // After wait() was true.
    const Ending& ending() const { return _ending; }
    const Place& place() const { return *_place; }

  private:
    [[noreturn]] void work(const Work& work, Exit exit);
    void check_limits();
    std::chrono::nanoseconds processor_time() const;
    void finish(int status);
    std::vector<std::string> last_lines() const;

    using Clock = std::chrono::steady_clock;
    std::unique_ptr<Place, void (*)(Place*)> _place;
    MemoryFile _result{"result"}, _said{"said"};
    int _process = -1, _watch = -1;
    Limits _limits;
    Clock::time_point _start, _step_start;
    std::chrono::nanoseconds _step_start_of_processor{0};
    std::uint64_t _steps_seen = 0;
    bool _over = false;
    Ending _ending;
};

// Runs it to its end.
Ending run_in_child(const Child::Work& work, Limits limits, Child::Exit exit = Child::Exit::Proper);

} // namespace minihost
