// Hosts that lack suites: the optional ones in all combinations, and each suite alone.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/ChildPool.h"
#include "minihost/check/Deviations.h"
#include "minihost/check/PluginRun.h"
#include "minihost/check/ReplayCommands.h"
#include "minihost/suites/SuiteTable.h"

#include <algorithm>

namespace minihost {

namespace {

constexpr int all_scenarios_level = 5;

std::vector<std::string> words_of_optional_suites() {
    std::vector<std::string> words;
    for (const Suite& suite : suites())
        if (suite.without && std::find(words.begin(), words.end(), suite.without) == words.end())
            words.push_back(suite.without);
    return words;
}

// Plays the scenarios on a host without these suites. `allowed` violations are not reported.
void play_without(const CheckContext& context, ChildPool& pool, const std::set<std::string>& words,
                  const std::set<ViolationKind>& allowed, Findings& findings) {
    std::string options;
    for (const std::string& word : words)
        options += (options.empty() ? "--without " : " --without ") + shell_quote(word);
    const std::vector<BaselineRun>& runs = context.baseline.runs;
    for (const BaselineRun& baseline : runs) {
        // On low levels the first scenario and the last, which does most, stand for all.
        if (context.target.level < all_scenarios_level && &baseline != &runs.front() &&
            &baseline != &runs.back())
            continue;
        if (!baseline.is_complete() || baseline.scenario.is_text_variant) continue;
        std::set<ViolationKind> known = baseline.kinds();
        known.insert(allowed.begin(), allowed.end());
        const std::string example = replay_hint(context.target, baseline.scenario, options);
        pool.run(
            [&, words](ChildProgress& progress) {
                HostOptions host;
                host.without = words;
                return violations_of_run(context.target.plugin, context.target.small_scene, host,
                                         baseline.scenario, progress);
            },
            [&, known, example](const ChildResult& result) {
                report_deviations(result, known, example, context.progress, findings);
            });
    }
}

} // namespace

void check_missing_optional(const CheckContext& context, Findings& findings) {
    const std::vector<std::string> words = words_of_optional_suites();
    ChildPool pool(context.target.limits(), Child::Exit::Normal);
    for (unsigned combination = 1; combination < 1u << words.size(); ++combination) {
        std::set<std::string> without;
        for (std::size_t i = 0; i < words.size(); ++i)
            if (combination >> i & 1u) without.insert(words[i]);
        play_without(context, pool, without, {}, findings);
    }
    pool.finish();
    note_small_scene(context.target, findings);
}

void check_missing_any(const CheckContext& context, Findings& findings) {
    ChildPool pool(context.target.limits(), Child::Exit::Normal);
    for (const Suite& suite : suites()) {
        std::set<ViolationKind> allowed{ViolationKind::HookError};
        // Nothing can be released without its suite.
        for (const char* call : suite.calls)
            if (is_release_call(suite.name + (std::string(".") + call)))
                allowed.insert({ViolationKind::HeldStream, ViolationKind::HeldCollection});
        play_without(context, pool, {suite.name + (" " + std::to_string(suite.version))}, allowed,
                     findings);
    }
    pool.finish();
    note_small_scene(context.target, findings);
}

} // namespace minihost
