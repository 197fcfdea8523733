// A host that misbehaves: in every life, an answer of a kind, or every one, is nonsense, or the
// scene changes between two calls. It may make hooks return errors, and nothing else.

#include "minihost/check/Groups.h"
#include "minihost/check/Interference.h"
#include "minihost/check/Life.h"

#include <algorithm>
#include <limits>
#include <new>
#include <sys/resource.h>

namespace minihost {

namespace {

// How many single answers of a kind are spoiled in the first life, on a level; a part of them in
// the others, which are much like it.
constexpr std::int64_t most_answers[] = {8, 8, 10, 12, 16, 20, 30, 40, 60, 100};
constexpr std::int64_t part_of_other_lives = 10;
// What a life may take; nonsense must not make it ask for all that there is.
constexpr rlim_t most_memory = rlim_t{4} << 30;

[[noreturn]] void tell_of_memory() {
    std::fputs("it asked for more than 4 GB of memory\n", stderr);
    std::fflush(stderr);
    std::_Exit(1);
}

void limit_memory() {
    if (sanitizer_factor > 1) return; // they take more than that by themselves
    const rlimit limit{most_memory, most_memory};
    ::setrlimit(RLIMIT_AS, &limit);
    std::set_new_handler(tell_of_memory);
}

class HostileCheck {
  public:
    HostileCheck(const CheckContext& context, Findings& findings, MisbehaviourKind kind)
        : _context(context),
          _subject(context.subject),
          _findings(findings),
          _kind(kind),
          _crew(_subject.limits(), Child::Exit::Proper) {}

    void run() {
        for (const RehearsedLife& plain : _context.rehearsal.lives) {
            if (!plain.ended_well() || !plain.scenario.is_mode) continue;
            const std::int64_t answers = count_answers(plain);
            if (answers == 0) continue;
            for (const Misbehaviour& misbehaviour : misbehaviours()) {
                if (misbehaviour.kind != _kind) continue;
                misbehave(plain, {&misbehaviour, 0});
                for (const std::int64_t number :
                     picks(answers, &plain == &_context.rehearsal.lives[0]))
                    misbehave(plain, {&misbehaviour, number});
            }
        }
        _crew.finish();
        if (_findings.runs() == 0) _findings.skip("the plug-in asks for nothing of the kind");
        note_cut(_subject, _findings);
    }

  private:
    // Evenly among all, others in each life.
    std::vector<std::int64_t> picks(std::int64_t answers, bool is_first) {
        const std::int64_t all = most_answers[_subject.level - 1];
        const std::int64_t most =
            is_first ? all : std::max<std::int64_t>(1, all / part_of_other_lives);
        const std::int64_t stride = std::max<std::int64_t>(1, answers / most);
        std::vector<std::int64_t> numbers;
        for (std::int64_t i = 1 + _turn++ % stride; i <= answers; i += stride) numbers.push_back(i);
        return numbers;
    }

    std::int64_t count_answers(const RehearsedLife& plain) {
        HostOptions options;
        for (const Misbehaviour& it : misbehaviours())
            options.misbehaviours.push_back({&it, std::numeric_limits<std::int64_t>::max()});
        const Ending counted = run_in_child(
            [&](Place& place) {
                Life life(_subject.plugin, _subject.small_scene, options, place);
                life.live(plain.scenario);
                return std::to_string(life.session().host().misbehaviour_plan.count(_kind));
            },
            _subject.limits(), Child::Exit::Quick);
        // Otherwise the rehearsal tells.
        return counted.kind == Ending::Kind::Done ? std::stoll(counted.result) : 0;
    }

    void misbehave(const RehearsedLife& plain, PlannedMisbehaviour planned) {
        _crew.run(
            [this, &plain, planned](Place& place) {
                limit_memory();
                HostOptions options;
                options.misbehaviours = {planned};
                Life life(_subject.plugin, _subject.small_scene, options, place);
                life.live(plain.scenario);
                return violations_text(life.violations());
            },
            [this, &plain, planned](const Ending& ending) {
                const std::string example = example_of(plain, planned);
                _context.place.enter(example);
                ++_context.place.runs;
                _findings.count_run();
                tell(ending, plain, example);
            });
    }

    void tell(const Ending& ending, const RehearsedLife& plain, const std::string& example) {
        std::set<ViolationKind> known = plain.kinds();
        known.insert(ViolationKind::HookError); // that is how a plug-in gives up
        if (_kind == MisbehaviourKind::Scene) known.insert(ViolationKind::StaleHandle);
        // The host refuses what it gave; still it is better not to ask it.
        if (_kind == MisbehaviourKind::Handle && ending.kind == Ending::Kind::Done)
            for (const Violation& violation : violations_in(ending.result))
                if (violation.kind == ViolationKind::WrongHandle && !known.contains(violation.kind))
                    _findings.add(Outcome::Warn, violation.text, example);
        if (_kind == MisbehaviourKind::Handle) known.insert(ViolationKind::WrongHandle);
        tell_disturbed(ending, known, example, _findings);
    }

    std::string example_of(const RehearsedLife& plain, PlannedMisbehaviour planned) const {
        std::string text = planned.misbehaviour->word;
        if (planned.number > 0) text += ":" + std::to_string(planned.number);
        return where_counted(_subject, plain.scenario, "--misbehave " + shell_word(text));
    }

    const CheckContext& _context;
    const Subject& _subject;
    Findings& _findings;
    MisbehaviourKind _kind;
    std::int64_t _turn = 0;
    Crew _crew;
};

} // namespace

void tell_hostile(const CheckContext& context, Findings& findings, MisbehaviourKind kind) {
    HostileCheck(context, findings, kind).run();
}

} // namespace minihost
