#include "minihost/check/Crew.h"

#include <algorithm>
#include <thread>

namespace minihost {

Crew::Crew(Limits limits, Child::Exit exit)
    : _limits(limits),
      _exit(exit),
      _most(std::clamp(std::thread::hardware_concurrency(), 1u, 16u)) {}

void Crew::run(const Child::Work& work, Done done) {
    if (_members.size() >= _most) wait_for_first();
    _members.push_back({std::make_unique<Child>(work, _limits, _exit), std::move(done)});
}

void Crew::finish() {
    while (!_members.empty()) wait_for_first();
}

void Crew::wait_for_first() {
    while (!_members.front().child->wait(std::chrono::seconds(10))) {
    }
    const Member first = std::move(_members.front());
    _members.pop_front();
    first.done(first.child->ending());
}

} // namespace minihost
