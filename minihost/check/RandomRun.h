// Runs in which a random user, or a list of steps, uses the plug-in, in child processes. The steps
// are known even after a crash.

#pragma once

#include "minihost/check/Check.h"
#include "minihost/check/ChildPool.h"
#include "minihost/check/MemoryFile.h"
#include "minihost/check/RandomUser.h"

#include <optional>
#include <set>

namespace minihost {

// What a child did, as it records it for its parent.
class Journal {
  public:
    void begin_step();
    void begin_action(const std::string& line);
    // The last action was not possible.
    void drop_action();
    // Without the dropped actions.
    std::vector<Step> steps() const;

  private:
    MemoryFile _file{"journal"};
};

// How a run failed; equal for equal failures.
struct RunFailure {
    ChildResult::Kind kind = ChildResult::Kind::Done;
    std::optional<ViolationKind> violation; // of a run that ended by itself
    bool operator==(const RunFailure&) const = default;
};

struct RandomResult {
    std::optional<RunFailure> failure;
    std::string text;        // describes the failure
    std::vector<Step> steps; // until then
};

class RandomRuns {
  public:
    RandomRuns(const CheckContext& context, Limits limits);

    // `done` is called in this or a later call, or in finish().
    using Done = std::function<void(RandomResult)>;
    void start_user(std::uint64_t seed, RandomUser::Input input, std::size_t steps, Done done);
    void start_replay(std::vector<Step> steps, Done done);
    void finish() { _pool.finish(); }

  private:
    using Next = std::function<std::optional<Step>(Session&)>;
    void start(Next next, Done done);
    std::string play(const Next& next, Journal& journal, ChildProgress& progress) const;
    RandomResult result_of(const ChildResult& child, const Journal& journal) const;

    const CheckContext& _context;
    ChildPool _pool;
    std::set<ViolationKind> _known; // in the baseline
};

} // namespace minihost
