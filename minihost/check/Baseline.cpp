#include "minihost/check/Baseline.h"

#include "minihost/check/ChildPool.h"
#include "minihost/check/PluginRun.h"
#include "minihost/check/Target.h"

#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

// Opens the dialog and returns the scenarios for its controls, or why the plug-in does not load.
std::string explore(const Target& target, ChildProgress& progress) {
    PluginRun run(target.plugin, target.scene, {}, progress);
    Json result{{"load_error", ""}, {"scenarios", Json::array()}};
    if (!run.load()) {
        result["load_error"] = run.load_error();
    } else {
        run.play("menu");
        run.play("idle");
        Session& session = run.session();
        const PlayLines play = [&](const std::vector<std::string>& lines) {
            for (const std::string& line : lines) run.play(line);
            const Dialog dialog = session.dialog();
            std::vector<Control> controls;
            if (dialog.exists)
                session.enter([&] { controls = session.dialog_driver().controls(dialog.panel); });
            return controls;
        };
        for (const Scenario& it :
             scenarios_of(play({}), session.control_names(), play, target.level)) {
            Json actions = Json::array();
            for (const ScenarioAction& action : it.actions)
                actions.push_back({static_cast<int>(action.phase), action.line});
            result["scenarios"].push_back({it.name, actions, it.is_text_variant});
        }
        run.unload();
    }
    return result.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Scenario> scenarios_in(const Json& list) {
    std::vector<Scenario> scenarios;
    for (const Json& it : list) {
        Scenario scenario{it[0], {}, it[2]};
        for (const Json& action : it[1])
            scenario.actions.push_back({static_cast<Phase>(action[0].get<int>()), action[1]});
        scenarios.push_back(std::move(scenario));
    }
    return scenarios;
}

} // namespace

std::set<ViolationKind> BaselineRun::kinds() const {
    std::set<ViolationKind> kinds;
    for (const Violation& it : violations) kinds.insert(it.kind);
    return kinds;
}

Baseline record_baseline(const Target& target, const std::function<void(std::size_t)>& progress) {
    Baseline baseline;
    const ChildResult explored =
        run_in_child([&](ChildProgress& child) { return explore(target, child); }, target.limits(),
                     Child::Exit::Quick);
    std::vector<Scenario> scenarios{plain_scenario()};
    if (explored.kind == ChildResult::Kind::Done) {
        const Json result = Json::parse(explored.output);
        baseline.load_error = result["load_error"];
        if (!baseline.load_error.empty()) return baseline;
        scenarios = scenarios_in(result["scenarios"]);
    } else {
        baseline.runs.push_back({scenarios[0], explored, {}});
        // The plain scenario would get no further.
        for (const char* checkpoint : {"load", "menu", "idle"})
            if (explored.last_checkpoint == checkpoint) return baseline;
    }
    ChildPool pool(target.limits(), Child::Exit::Normal);
    const std::size_t before = baseline.runs.size();
    baseline.runs.resize(before + scenarios.size());
    std::size_t done = 0;
    for (std::size_t i = 0; i < scenarios.size(); ++i) {
        BaselineRun& recorded = baseline.runs[before + i];
        recorded.scenario = std::move(scenarios[i]);
        pool.run(
            [&](ChildProgress& child) {
                return violations_of_run(target.plugin, target.scene, {}, recorded.scenario, child);
            },
            [&](const ChildResult& result) {
                recorded.result = result;
                if (recorded.is_complete())
                    recorded.violations = violations_from_json(result.output);
                if (result.leaked)
                    recorded.violations.push_back(
                        {ViolationKind::Leak, "memory is not freed at the end"});
                progress(++done);
            });
    }
    pool.finish();
    return baseline;
}

} // namespace minihost
