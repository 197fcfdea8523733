#include "minihost/check/RandomRun.h"

#include "minihost/check/PluginRun.h"

#include <memory>

namespace minihost {

namespace {

// The first character of each line of the journal.
constexpr char step_mark = '=', action_mark = '+', drop_mark = '!';

} // namespace

void Journal::begin_step() {
    _file.write(std::string(1, step_mark) + "\n");
}

void Journal::begin_action(const std::string& line) {
    _file.write(action_mark + line + "\n");
}

void Journal::drop_action() {
    _file.write(std::string(1, drop_mark) + "\n");
}

std::vector<Step> Journal::steps() const {
    const std::string text = _file.content();
    std::vector<Step> steps;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start);
        if (text[start] == step_mark)
            steps.emplace_back();
        else if (text[start] == action_mark)
            steps.back().push_back(text.substr(start + 1, end - start - 1));
        else
            steps.back().pop_back();
        start = end + 1;
    }
    std::erase_if(steps, [](const Step& it) { return it.empty(); });
    return steps;
}

RandomRuns::RandomRuns(const CheckContext& context, Limits limits)
    : _context(context), _pool(limits, Child::Exit::Normal) {
    for (const BaselineRun& run : context.baseline.runs) _known.merge(run.kinds());
}

void RandomRuns::start_user(std::uint64_t seed, RandomUser::Input input, std::size_t steps,
                            Done done) {
    start(
        [user = RandomUser(seed, input), steps](Session& session) mutable {
            return steps-- > 0 ? std::optional(user.next(session)) : std::nullopt;
        },
        std::move(done));
}

void RandomRuns::start_replay(std::vector<Step> steps, Done done) {
    start(
        [steps = std::move(steps), next = std::size_t{0}](Session&) mutable {
            return next < steps.size() ? std::optional(steps[next++]) : std::nullopt;
        },
        std::move(done));
}

void RandomRuns::start(Next next, Done done) {
    const auto journal = std::make_shared<Journal>();
    _pool.run([this, next = std::move(next),
               journal](ChildProgress& progress) { return play(next, *journal, progress); },
              [this, done = std::move(done), journal](const ChildResult& child) {
                  ++_context.progress.runs;
                  done(result_of(child, *journal));
              });
}

// Stops at the first violation that the baseline does not have, and returns it.
std::string RandomRuns::play(const Next& next, Journal& journal, ChildProgress& progress) const {
    PluginRun run(_context.target.plugin, _context.target.small_scene, {}, progress);
    std::size_t seen = 0;
    const auto new_violation = [&] {
        for (; seen < run.violations().size(); ++seen)
            if (!_known.contains(run.violations()[seen].kind)) return true;
        return false;
    };
    run.load();
    while (!new_violation()) {
        const auto step = next(run.session());
        if (!step) {
            run.unload();
            new_violation();
            break;
        }
        journal.begin_step();
        for (const std::string& line : *step) {
            journal.begin_action(line);
            if (!run.play(line)) journal.drop_action();
        }
    }
    if (seen == run.violations().size()) return violations_to_json({});
    return violations_to_json({run.violations()[seen]});
}

RandomResult RandomRuns::result_of(const ChildResult& child, const Journal& journal) const {
    RandomResult result;
    if (child.kind != ChildResult::Kind::Done) {
        result.failure = RunFailure{child.kind, {}};
        result.text = describe_failure(child);
    } else if (const auto violations = violations_from_json(child.output); !violations.empty()) {
        result.failure = RunFailure{child.kind, violations[0].kind};
        result.text = violations[0].text;
    } else if (child.leaked && !_known.contains(ViolationKind::Leak)) {
        result.failure = RunFailure{child.kind, ViolationKind::Leak};
        result.text = "memory is not freed at the end";
    }
    if (result.failure) result.steps = journal.steps();
    return result;
}

} // namespace minihost
