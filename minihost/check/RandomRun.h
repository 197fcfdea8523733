// A life in which a random user, or a list of deeds, uses the plug-in, in a process of its own;
// what was done is known even when that process crashes.

#pragma once

#include "minihost/check/Check.h"
#include "minihost/check/Crew.h"
#include "minihost/check/MemoryFile.h"
#include "minihost/check/RandomUser.h"

#include <memory>
#include <optional>
#include <set>

namespace minihost {

// What was done, as a child puts it down for its parent.
class Journal {
  public:
    void begin_deed();
    void begin(const std::string& line);
    // The line begun last could not be done.
    void refuse();
    // The deeds, without lines that could not be done.
    std::vector<Deed> deeds() const;

  private:
    MemoryFile _file{"journal"};
};

// How a run went wrong: two that did so alike are equal in it.
struct Wrong {
    Ending::Kind ending = Ending::Kind::Done;
    std::optional<ViolationKind> fault; // of a run that came to its end
    bool operator==(const Wrong&) const = default;
};

struct RandomResult {
    std::optional<Wrong> wrong; // nothing when all went well
    std::string text;           // what went wrong
    std::vector<Deed> deeds;    // as far as it got
};

class RandomRuns {
  public:
    RandomRuns(const CheckContext& context, Limits limits)
        : _context(context), _crew(limits, Child::Exit::Proper), _known(known(context)) {}

    // `done` is called in this or a later call, or in finish().
    using Done = std::function<void(RandomResult)>;
    void use(std::uint64_t seed, RandomUser::Way way, std::size_t deeds, Done done);
    void repeat(std::vector<Deed> deeds, Done done);
    void finish() { _crew.finish(); }

  private:
    static std::set<ViolationKind> known(const CheckContext& context);
    using Next = std::function<std::optional<Deed>(Session&)>;
    void run(Next next, Done done);
    std::string live(const Next& next, Journal& journal, Place& place) const;
    RandomResult result(const Ending& ending, const Journal& journal) const;

    const CheckContext& _context;
    Crew _crew;
    std::set<ViolationKind> _known;
};

} // namespace minihost
