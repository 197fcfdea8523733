#include "minihost/check/ChildPool.h"

#include <algorithm>
#include <thread>

namespace minihost {

ChildPool::ChildPool(Limits limits, Child::Exit exit)
    : _limits(limits),
      _exit(exit),
      _max_children(std::clamp(std::thread::hardware_concurrency(), 1u, 16u)) {}

void ChildPool::run(const Child::Work& work, Done done) {
    if (_entries.size() >= _max_children) wait_for_first();
    _entries.push_back({std::make_unique<Child>(work, _limits, _exit), std::move(done)});
}

void ChildPool::finish() {
    while (!_entries.empty()) wait_for_first();
}

void ChildPool::wait_for_first() {
    while (!_entries.front().child->wait(std::chrono::seconds(10))) {
    }
    const Entry first = std::move(_entries.front());
    _entries.pop_front();
    first.done(first.child->result());
}

} // namespace minihost
