#include "minihost/check/RandomRun.h"

#include "minihost/check/Groups.h"
#include "minihost/check/Life.h"

namespace minihost {

namespace {

// Each line of the journal begins with what it is.
constexpr char deed_mark = '=', line_mark = '+', refusal_mark = '!';

} // namespace

void Journal::begin_deed() {
    _file.write(std::string(1, deed_mark) + "\n");
}

void Journal::begin(const std::string& line) {
    _file.write(line_mark + line + "\n");
}

void Journal::refuse() {
    _file.write(std::string(1, refusal_mark) + "\n");
}

std::vector<Deed> Journal::deeds() const {
    const std::string text = _file.content();
    std::vector<Deed> deeds;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start);
        if (text[start] == deed_mark)
            deeds.emplace_back();
        else if (text[start] == line_mark)
            deeds.back().push_back(text.substr(start + 1, end - start - 1));
        else
            deeds.back().pop_back();
        start = end + 1;
    }
    std::erase_if(deeds, [](const Deed& it) { return it.empty(); });
    return deeds;
}

std::set<ViolationKind> RandomRuns::known(const CheckContext& context) {
    std::set<ViolationKind> known;
    for (const RehearsedLife& life : context.rehearsal.lives) known.merge(life.kinds());
    return known;
}

void RandomRuns::use(std::uint64_t seed, RandomUser::Way way, std::size_t deeds, Done done) {
    run(
        [user = RandomUser(seed, way), deeds](Session& session) mutable {
            return deeds-- > 0 ? std::optional(user.next(session)) : std::nullopt;
        },
        std::move(done));
}

void RandomRuns::repeat(std::vector<Deed> deeds, Done done) {
    run(
        [deeds = std::move(deeds), next = std::size_t{0}](Session&) mutable {
            return next < deeds.size() ? std::optional(deeds[next++]) : std::nullopt;
        },
        std::move(done));
}

void RandomRuns::run(Next next, Done done) {
    const auto journal = std::make_shared<Journal>();
    _crew.run([this, next = std::move(next),
               journal](Place& place) { return live(next, *journal, place); },
              [this, done = std::move(done), journal](const Ending& ending) {
                  ++_context.place.runs;
                  done(result(ending, *journal));
              });
}

// Until something goes wrong that did not without this.
std::string RandomRuns::live(const Next& next, Journal& journal, Place& place) const {
    Life life(_context.subject.plugin, _context.subject.small_scene, {}, place);
    std::size_t seen = 0;
    const auto new_violation = [&] {
        for (; seen < life.violations().size(); ++seen)
            if (!_known.contains(life.violations()[seen].kind)) return true;
        return false;
    };
    life.load();
    while (!new_violation()) {
        const auto deed = next(life.session());
        if (!deed) {
            life.unload();
            new_violation();
            break;
        }
        journal.begin_deed();
        for (const std::string& line : *deed) {
            journal.begin(line);
            if (!life.play(line)) journal.refuse();
        }
    }
    if (seen == life.violations().size()) return violations_text({});
    return violations_text({life.violations()[seen]});
}

RandomResult RandomRuns::result(const Ending& ending, const Journal& journal) const {
    RandomResult result;
    if (ending.kind != Ending::Kind::Done) {
        result.wrong = Wrong{ending.kind, {}};
        result.text = death_of(ending);
    } else if (const std::vector<Violation> violations = violations_in(ending.result);
               !violations.empty()) {
        result.wrong = Wrong{ending.kind, violations[0].kind};
        result.text = violations[0].text;
    } else if (ending.leaked && !_known.contains(ViolationKind::Leak)) {
        result.wrong = Wrong{ending.kind, ViolationKind::Leak};
        result.text = "memory is not freed at the end";
    }
    if (result.wrong) result.deeds = journal.deeds();
    return result;
}

} // namespace minihost
