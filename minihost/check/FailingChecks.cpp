// Calls that fail: in every part of a life, every call that the plug-in makes then returns an error
// once. The life up to that part is lived once; from there each failure has a process of its own,
// forked off at that moment.

#include "minihost/check/Groups.h"
#include "minihost/check/Interference.h"
#include "minihost/check/Life.h"
#include "minihost/suites/SuiteTable.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr std::int32_t codes[] = {4, A_Err_MISSING_SUITE, -1};

// How many calls of a part fail on a level; all of them on the last.
constexpr std::size_t most_failures[] = {12, 20, 40, 60, 100, 200, 400, 1000, 4000, SIZE_MAX};

// The calls of a part that are to fail: the first of each name, then evenly among all.
std::vector<std::size_t> picks(const std::vector<std::string>& calls, int level) {
    const std::size_t most = most_failures[level - 1];
    std::set<std::size_t> chosen;
    std::set<std::string> names;
    for (std::size_t i = 0; i < calls.size(); ++i)
        if (names.insert(calls[i]).second) chosen.insert(i);
    const std::size_t stride = std::max<std::size_t>(1, calls.size() / most);
    for (std::size_t i = 0; i < calls.size(); i += stride) chosen.insert(i);
    return {chosen.begin(), chosen.end()};
}

// A part of a scenario, with one process that has lived up to it.
class Sweep {
  public:
    Sweep(const CheckContext& context, const RehearsedLife& plain, std::size_t part, Place& place)
        : _subject(context.subject),
          _lives(context.rehearsal.lives),
          _plain(plain),
          _part(part),
          _place(place),
          _life(_subject.plugin, _subject.small_scene, {}, place),
          _crew(_subject.limits()) {}

    // What it finds, as text.
    std::string run() {
        _life.record_calls();
        for (std::size_t i = 0; i < _part; ++i) _life.live_part(_plain.scenario, i);
        for (const std::string& line : _life.calls()) ++_made_before[call_in(line)];
        const std::vector<std::string> calls = calls_of_part();
        std::map<std::string, std::int64_t> number;
        std::vector<PlannedFailure> failures;
        for (const std::string& call : calls) failures.push_back({call, ++number[call], 0});
        std::size_t turn = 0;
        for (const std::size_t pick : picks(calls, _subject.level))
            for (std::size_t i = 0; i < codes_for_each(); ++i) {
                failures[pick].code = codes[turn++ % std::size(codes)];
                fail(failures[pick]);
            }
        _crew.finish();
        return _findings.text();
    }

  private:
    // On the last level all codes in the plain life; otherwise they take turns.
    std::size_t codes_for_each() const {
        const bool is_plain = &_plain == &_lives.front();
        return _subject.level >= 10 && is_plain ? std::size(codes) : 1;
    }

    // The calls that it makes when none fails.
    std::vector<std::string> calls_of_part() {
        const std::size_t before = _life.calls().size();
        const Ending plain = run_in_child(
            [&](Place&) {
                _life.live_part(_plain.scenario, _part);
                Json names = Json::array();
                for (std::size_t i = before; i < _life.calls().size(); ++i)
                    names.push_back(call_in(_life.calls()[i]));
                return names.dump();
            },
            _subject.limits(), Child::Exit::Quick);
        if (plain.kind != Ending::Kind::Done) return {}; // which the rehearsal tells
        return Json::parse(plain.result);
    }

    void fail(const PlannedFailure& failure) {
        std::set<ViolationKind> known = _plain.kinds();
        known.insert(ViolationKind::HookError); // that is what an error is for
        if (is_release_call(failure.call))
            known.insert({ViolationKind::HeldSuite, ViolationKind::HeldStream,
                          ViolationKind::HeldCollection, ViolationKind::OpenUndoGroup});
        const std::string example = example_of(failure);
        _crew.run(
            [this, failure](Place& place) {
                Host& host = _life.session().host();
                host.log.set_sink({});
                host.failure_plan = FailurePlan({failure});
                for (std::size_t i = _part; i < Life::parts(_plain.scenario); ++i) {
                    place.enter(i == 0 ? "load"
                                : i > _plain.scenario.steps.size()
                                    ? "unload"
                                    : _plain.scenario.steps[i - 1].line);
                    _life.live_part(_plain.scenario, i);
                }
                return violations_text(_life.violations());
            },
            [this, known, example](const Ending& ending) {
                _place.enter(example);
                ++_place.runs;
                tell_disturbed(ending, known, example, _findings);
                _findings.count_run();
            });
    }

    std::string example_of(const PlannedFailure& failure) {
        const std::string text = failure.call + ":" +
                                 std::to_string(failure.number + _made_before[failure.call]) + ":" +
                                 std::to_string(failure.code);
        return where_counted(_subject, _plain.scenario, "--fail " + shell_word(text));
    }

    const Subject& _subject;
    const std::vector<RehearsedLife>& _lives;
    const RehearsedLife& _plain;
    std::size_t _part;
    Place& _place;
    Life _life;
    std::map<std::string, std::int64_t> _made_before;
    Findings _findings;
    Crew _crew; // goes first: its members tell the findings
};

Limits limits_of_sweep(const Subject& subject) {
    return {std::chrono::hours(2), 4 * subject.limits().step};
}

} // namespace

void tell_failing_calls(const CheckContext& context, Findings& findings, Phase phase) {
    for (const RehearsedLife& plain : context.rehearsal.lives) {
        if (!plain.ended_well() || !plain.scenario.is_mode) continue;
        for (std::size_t part = 0; part < Life::parts(plain.scenario); ++part) {
            if (Life::phase(plain.scenario, part) != phase) continue;
            const std::uint64_t before = context.place.runs;
            Child sweep([&](Place& place) { return Sweep(context, plain, part, place).run(); },
                        limits_of_sweep(context.subject), Child::Exit::Quick);
            std::uint64_t steps = 0;
            while (!sweep.wait(std::chrono::milliseconds(200))) {
                context.place.runs = before + sweep.place().runs;
                if (sweep.place().steps() != std::exchange(steps, sweep.place().steps()))
                    context.place.enter(sweep.place().step());
            }
            context.place.runs = before + sweep.place().runs;
            context.place.enter(plain.scenario.name);
            const Ending& ending = sweep.ending();
            if (ending.kind == Ending::Kind::Done)
                findings.add(Findings::parse(ending.result));
            else
                findings.add(Outcome::Crash, death_of(ending), "with " + plain.scenario.name);
        }
        // The other lives have these parts just so.
        if (phase != Phase::Apply) break;
    }
    if (findings.runs() == 0) findings.skip("the plug-in makes no call there");
    note_cut(context.subject, findings);
}

} // namespace minihost
