// Child processes, several at a time.

#pragma once

#include "minihost/check/Child.h"

#include <deque>
#include <functional>
#include <memory>

namespace minihost {

// Destroying it kills the children that still run.
class ChildPool {
  public:
    using Done = std::function<void(const ChildResult&)>;

    // As many at a time as there are processors.
    explicit ChildPool(Limits limits, Child::Exit exit = Child::Exit::Quick);

    // Starts a child when there is room. `done` is called in this or a later call, in the order of
    // the starts; what `work` refers to must live until then.
    void run(const Child::Work& work, Done done);
    // Waits for all.
    void finish();

  private:
    struct Entry {
        std::unique_ptr<Child> child;
        Done done;
    };
    void wait_for_first();

    Limits _limits;
    Child::Exit _exit;
    std::size_t _max_children;
    std::deque<Entry> _entries;
};

} // namespace minihost
