// Hosts that lack suites: the optional ones in all combinations, and each suite once.

#include "minihost/check/Groups.h"
#include "minihost/check/Interference.h"
#include "minihost/check/Life.h"
#include "minihost/suites/SuiteTable.h"

#include <algorithm>

namespace minihost {

namespace {

constexpr int level_of_all_lives = 5;

std::vector<std::string> optional_parts() {
    std::vector<std::string> words;
    for (const Suite& suite : suites())
        if (suite.without && std::find(words.begin(), words.end(), suite.without) == words.end())
            words.push_back(suite.without);
    return words;
}

// Lives through the scenarios on a host without these parts. `allowed` kinds are no faults then.
void live_without(const CheckContext& context, Crew& crew, const std::set<std::string>& without,
                  const std::set<ViolationKind>& allowed, Findings& findings) {
    std::string options;
    for (const std::string& word : without)
        options += (options.empty() ? "--without " : " --without ") + shell_word(word);
    for (const RehearsedLife& plain : context.rehearsal.lives) {
        // On low levels the plain one and the one that uses most stand for all.
        if (context.subject.level < level_of_all_lives &&
            &plain != &context.rehearsal.lives.front() && &plain != &context.rehearsal.lives.back())
            continue;
        if (!plain.ended_well() || !plain.scenario.is_mode) continue;
        std::set<ViolationKind> known = plain.kinds();
        known.insert(allowed.begin(), allowed.end());
        const std::string example = where(context.subject, plain.scenario, options);
        crew.run(
            [&, without](Place& place) {
                HostOptions host;
                host.without = without;
                Life life(context.subject.plugin, context.subject.small_scene, host, place);
                life.live(plain.scenario);
                return violations_text(life.violations());
            },
            [&, known, example](const Ending& ending) {
                context.place.enter(example);
                tell_disturbed(ending, known, example, findings);
                findings.count_run();
                ++context.place.runs;
            });
    }
}

} // namespace

void check_missing_optional(const CheckContext& context, Findings& findings) {
    const std::vector<std::string> words = optional_parts();
    Crew crew(context.subject.limits(), Child::Exit::Proper);
    for (unsigned combination = 1; combination < 1u << words.size(); ++combination) {
        std::set<std::string> without;
        for (std::size_t i = 0; i < words.size(); ++i)
            if (combination >> i & 1u) without.insert(words[i]);
        live_without(context, crew, without, {}, findings);
    }
    crew.finish();
    note_cut(context.subject, findings);
}

void check_missing_any(const CheckContext& context, Findings& findings) {
    Crew crew(context.subject.limits(), Child::Exit::Proper);
    for (const Suite& suite : suites()) {
        std::set<ViolationKind> allowed{ViolationKind::HookError};
        // Without its suite nothing can be given back.
        for (const char* call : suite.calls)
            if (is_release_call(suite.name + (std::string(".") + call)))
                allowed.insert({ViolationKind::HeldStream, ViolationKind::HeldCollection});
        live_without(context, crew, {suite.name + (" " + std::to_string(suite.version))}, allowed,
                     findings);
    }
    crew.finish();
    note_cut(context.subject, findings);
}

} // namespace minihost
