#include "minihost/check/CheckRunner.h"

#include "minihost/actions/TerminalLine.h"
#include "minihost/check/Checks.h"
#include "minihost/check/ReplayCommands.h"
#include "minihost/check/Report.h"
#include "minihost/dialog/DialogDriver.h"
#include "minihost/model/OutputFile.h"

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

// Empty for a check that can run.
std::string reason_to_skip(const Check& check, const Baseline& baseline) {
    if (check.prerequisite == Prerequisite::None) return "";
    const auto& runs = baseline.runs;
    if (!baseline.load_error.empty() ||
        (!runs[0].is_complete() && runs[0].result.last_checkpoint == "load"))
        return "the plug-in does not start (load.entry)";
    if (check.prerequisite == Prerequisite::CompletesRun &&
        std::none_of(runs.begin(), runs.end(),
                     [](const BaselineRun& run) { return run.is_complete(); }))
        return "no life of the plug-in ends well (hooks.return, hooks.idle-ends): the plain one " +
               describe_failure(runs[0].result);
    return "";
}

Findings run_check(const Check& check, const Target& target, const Baseline& baseline,
                   TerminalLine& line) {
    const auto work = [&](ChildProgress& progress) {
        Findings findings;
        check.run({target, baseline, progress}, findings);
        return findings.to_json();
    };
    // For all of the check; its own children have stricter limits.
    const Limits limits{std::chrono::minutes(10 * target.level * sanitizer_factor),
                        8 * target.limits().between_checkpoints};
    // A leak in the baseline would show in every check, but held.memory reports it.
    const bool leaks =
        std::any_of(baseline.runs.begin(), baseline.runs.end(), [](const BaselineRun& run) {
            return run.kinds().contains(ViolationKind::Leak);
        });
    Child child(work, limits, leaks ? Child::Exit::Quick : Child::Exit::Normal);
    while (!child.wait(std::chrono::milliseconds(200)))
        line.show(std::string(check.id) + ": " + std::to_string(child.progress().runs) + " runs, " +
                  child.progress().last_checkpoint());
    line.erase();
    const ChildResult& result = child.result();
    Findings findings;
    if (result.kind == ChildResult::Kind::Done)
        findings = Findings::from_json(result.output);
    else
        findings.crash(describe_failure(result));
    if (result.leaked) {
        findings.crash("memory is not freed at the end of the check");
        for (const std::string& text : result.error_lines) findings.note(text);
    }
    if (findings.outcome() >= Outcome::Fail)
        findings.note("to repeat it: " + check_command(target, check.id));
    return findings;
}

std::vector<const Check*> chosen_checks(const std::vector<std::string>& only) {
    std::vector<const Check*> chosen;
    for (const Check& it : checks())
        if (only.empty() || std::find(only.begin(), only.end(), it.id) != only.end())
            chosen.push_back(&it);
    return chosen;
}

bool run_chosen(const Target& target, const std::vector<const Check*>& chosen,
                const std::string& json) {
    const Clock::time_point start = Clock::now();
    TerminalLine line;
    line.show("rehearsing");
    load_fonts();
    const Baseline baseline = record_baseline(target, [&](std::size_t runs) {
        line.show("rehearsing: " + std::to_string(runs) + " lives");
    });
    line.erase();
    std::vector<CheckResult> results;
    bool good = true;
    for (const Check* check : chosen) {
        const Clock::time_point check_start = Clock::now();
        Findings findings;
        if (const std::string reason = reason_to_skip(*check, baseline); !reason.empty())
            findings.skip(reason);
        else
            findings = run_check(*check, target, baseline, line);
        results.push_back({check, std::move(findings), seconds_since(check_start)});
        std::cout << result_text(results.back()) << std::flush;
        good = good && results.back().findings.outcome() < Outcome::Fail;
    }
    std::cout << summary_text(results, seconds_since(start)) << std::flush;
    if (!json.empty()) write_file(json, report_json(target, results));
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
    Target target;
    target.plugin = plugin;
    target.scene_file = scene_file;
    target.level = options.level;
    if (const auto parent = std::filesystem::path(options.json).parent_path(); !parent.empty())
        target.folder = parent.string();
    target.seed = options.seed;
    read_scenes(target);
    return run_chosen(target, chosen_checks(options.only), options.json);
}

} // namespace minihost
