// Two runs at the same time of the same day make the same calls with the same arguments and
// results.

#include "minihost/check/Clock.h"
#include "minihost/check/Crew.h"
#include "minihost/check/Groups.h"
#include "minihost/check/Life.h"

#include <algorithm>
#include <malloc.h>

namespace minihost {

namespace {

constexpr std::time_t second = 1'700'000'000; // at which both runs take place

// All calls of a life, a line each. Memory that nobody has written to holds this byte, so that what
// is read from it differs from run to run.
std::string calls_of(const CheckContext& context, const Scenario& scenario, int byte,
                     Place& place) {
    stop_clock(second);
    ::mallopt(M_PERTURB, byte);
    Life life(context.subject.plugin, context.subject.scene, {}, place);
    life.record_calls();
    life.live(scenario);
    std::string text;
    for (const std::string& line : life.calls()) text += line;
    return text;
}

std::string first_difference(const std::string& first, const std::string& second) {
    const auto [a, b] = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    const auto line_at = [](const std::string& text, std::string::const_iterator at) {
        const auto offset = static_cast<std::size_t>(at - text.begin());
        const std::size_t start = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
        const std::string line = text.substr(start, text.find('\n', offset) - start);
        return line.empty() ? std::string("nothing more") : line;
    };
    return "first " + line_at(first, a) + ", then " + line_at(second, b);
}

} // namespace

void check_equal_calls(const CheckContext& context, Findings& findings) {
    std::vector<std::string> first(context.rehearsal.lives.size());
    const auto run_all = [&](int byte, const auto& take) {
        Crew crew(context.subject.limits());
        for (std::size_t i = 0; i < first.size(); ++i) {
            const RehearsedLife& plain = context.rehearsal.lives[i];
            if (!plain.ended_well()) continue;
            crew.run(
                [&, byte](Place& place) { return calls_of(context, plain.scenario, byte, place); },
                [&, i](const Ending& ending) {
                    context.place.enter(plain.scenario.name);
                    ++context.place.runs;
                    if (ending.kind == Ending::Kind::Done)
                        take(i, plain.scenario, ending.result);
                    else
                        findings.add(Outcome::Fail, death_of(ending),
                                     "with " + plain.scenario.name);
                });
        }
        crew.finish();
    };
    run_all(0x5a,
            [&](std::size_t i, const Scenario&, const std::string& calls) { first[i] = calls; });
    run_all(0xa5, [&](std::size_t i, const Scenario& scenario, const std::string& calls) {
        findings.count_run();
        if (calls != first[i])
            findings.add(Outcome::Fail, "the calls differ: " + first_difference(first[i], calls),
                         "with " + scenario.name);
    });
}

} // namespace minihost
