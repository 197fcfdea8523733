// Many pieces of work, each in a child of its own, some of them at a time.

#pragma once

#include "minihost/check/Child.h"

#include <deque>
#include <functional>
#include <memory>

namespace minihost {

class Crew {
  public:
    using Done = std::function<void(const Ending&)>;

    // As many at a time as there are processors.
    explicit Crew(Limits limits, Child::Exit exit = Child::Exit::Quick);
    // Those that still run are ended, and nothing is told of them.
    ~Crew() = default;

    // Starts it as soon as there is room; `done` is called here or in a later call, in the order of
    // the starts. What `work` refers to must stay until then.
    void run(const Child::Work& work, Done done);
    // Waits for all.
    void finish();

  private:
    struct Member {
        std::unique_ptr<Child> child;
        Done done;
    };
    void wait_for_first();

    Limits _limits;
    Child::Exit _exit;
    std::size_t _most;
    std::deque<Member> _members;
};

} // namespace minihost
