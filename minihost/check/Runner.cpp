#include "minihost/check/Runner.h"

#include "minihost/actions/TerminalLine.h"
#include "minihost/check/Groups.h"
#include "minihost/check/Report.h"
#include "minihost/model/OutputFile.h"
#include "minihost/view/Screen.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>

namespace minihost {

namespace {

using Clock = std::chrono::steady_clock;

double seconds_since(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Why a check makes no sense, or nothing.
std::string reason_to_skip(const Check& check, const Rehearsal& rehearsal) {
    if (check.needs == Needs::Nothing) return "";
    const auto& lives = rehearsal.lives;
    if (!rehearsal.why_not.empty() || (!lives[0].ended_well() && lives[0].ending.step == "load"))
        return "the plug-in does not start (load.entry)";
    if (check.needs == Needs::Life &&
        std::none_of(lives.begin(), lives.end(),
                     [](const RehearsedLife& life) { return life.ended_well(); }))
        return "no life of the plug-in ends well (hooks.return, hooks.idle-ends): the plain one " +
               death_of(lives[0].ending);
    return "";
}

// A check's own pieces of work have limits; this is for the check itself.
Limits limits_of_check(const Subject& subject) {
    return {std::chrono::minutes(10 * subject.level * sanitizer_factor), 8 * subject.limits().step};
}

Findings run_check(const Check& check, const CheckContext& context, TerminalLine& progress) {
    const auto body = [&](Place& place) {
        Findings findings;
        check.run({context.subject, context.rehearsal, place}, findings);
        return findings.text();
    };
    // What leaks without any check is told by one of them.
    const bool leaks = std::any_of(
        context.rehearsal.lives.begin(), context.rehearsal.lives.end(),
        [](const RehearsedLife& life) { return life.kinds().contains(ViolationKind::Leak); });
    Child child(body, limits_of_check(context.subject),
                leaks ? Child::Exit::Quick : Child::Exit::Proper);
    while (!child.wait(std::chrono::milliseconds(200)))
        progress.show(std::string(check.id) + ": " + std::to_string(child.place().runs) +
                      " runs, " + child.place().step());
    progress.erase();
    const Ending& ending = child.ending();
    Findings findings;
    if (ending.kind == Ending::Kind::Done)
        findings = Findings::parse(ending.result);
    else
        findings.crash(death_of(ending));
    if (ending.leaked) {
        findings.crash("memory is not freed at the end of the check");
        for (const std::string& line : ending.said) findings.note(line);
    }
    if (findings.outcome() == Outcome::Crash || findings.outcome() == Outcome::Fail)
        findings.note("to repeat it: " + command_of_check(context.subject, check.id));
    return findings;
}

std::vector<const Check*> chosen_checks(const CheckOptions& options) {
    std::vector<const Check*> chosen;
    for (const Check& it : checks()) {
        const auto& only = options.only;
        const bool asked = std::find(only.begin(), only.end(), it.id) != only.end();
        if (only.empty() || asked) chosen.push_back(&it);
    }
    return chosen;
}

bool run_chosen(const Subject& subject, const std::vector<const Check*>& chosen,
                const std::string& json) {
    const Clock::time_point start = Clock::now();
    TerminalLine progress;
    progress.show("rehearsing");
    load_fonts();
    const Rehearsal rehearsal = rehearse(subject, [&](std::size_t lives) {
        progress.show("rehearsing: " + std::to_string(lives) + " lives");
    });
    progress.erase();
    static Place nowhere; // of checks that are not in their process yet
    std::vector<CheckResult> results;
    bool good = true;
    for (const Check* check : chosen) {
        const Clock::time_point check_start = Clock::now();
        Findings findings;
        if (const std::string reason = reason_to_skip(*check, rehearsal); !reason.empty())
            findings.skip(reason);
        else
            findings = run_check(*check, {subject, rehearsal, nowhere}, progress);
        results.push_back({check, std::move(findings), seconds_since(check_start)});
        std::cout << result_text(results.back()) << std::flush;
        good = good && results.back().findings.outcome() < Outcome::Fail;
    }
    std::cout << summary_text(results, seconds_since(start)) << std::flush;
    if (!json.empty()) write_file(json, report_json(subject, results));
    return good;
}

} // namespace

bool run_checks(const std::string& plugin, const std::string& scene_file,
                const CheckOptions& options) {
    if (options.list) {
        for (const Check& it : checks()) std::printf("%-26s%s\n", it.id, it.sentence);
        return true;
    }
    for (const std::string& id : options.only)
        if (!find_check(id)) throw std::runtime_error("there is no check '" + id + "'");
    Subject subject;
    subject.plugin = plugin;
    subject.scene_file = scene_file;
    subject.level = options.level;
    if (const auto parent = std::filesystem::path(options.json).parent_path(); !parent.empty())
        subject.folder = parent.string();
    subject.seed = options.seed;
    read_scenes(subject);
    return run_chosen(subject, chosen_checks(options), options.json);
}

} // namespace minihost
