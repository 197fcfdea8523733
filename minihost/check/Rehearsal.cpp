#include "minihost/check/Rehearsal.h"

#include "minihost/check/Check.h"
#include "minihost/check/Crew.h"
#include "minihost/check/Life.h"

#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

// Opens the dialog and tells the scenarios that its controls make possible, or why it does not
// start.
std::string explore(const Subject& subject, Place& place) {
    Life life(subject.plugin, subject.scene, {}, place);
    Json told{{"why_not", ""}, {"scenarios", Json::array()}};
    if (!life.load()) {
        told["why_not"] = life.why_not();
    } else {
        life.play("menu");
        life.play("idle");
        Session& session = life.session();
        const TryLines controls_after = [&](const std::vector<std::string>& lines) {
            for (const std::string& line : lines) life.play(line);
            const Dialog dialog = session.dialog();
            std::vector<Control> controls;
            if (dialog.exists)
                session.enter([&] { controls = session.screen().controls(dialog.panel); });
            return controls;
        };
        for (const Scenario& it : scenarios_of(controls_after({}), session.control_names(),
                                               controls_after, subject.level)) {
            Json steps = Json::array();
            for (const ScenarioStep& step : it.steps)
                steps.push_back({static_cast<int>(step.phase), step.line});
            told["scenarios"].push_back(
                {{"name", it.name}, {"steps", steps}, {"is_mode", it.is_mode}});
        }
        life.unload();
    }
    return told.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Scenario> scenarios_in(const Json& list) {
    std::vector<Scenario> scenarios;
    for (const Json& it : list) {
        Scenario scenario{it["name"], {}, it["is_mode"]};
        for (const Json& step : it["steps"])
            scenario.steps.push_back({static_cast<Phase>(step[0].get<int>()), step[1]});
        scenarios.push_back(std::move(scenario));
    }
    return scenarios;
}

} // namespace

std::set<ViolationKind> RehearsedLife::kinds() const {
    std::set<ViolationKind> kinds;
    for (const Violation& it : violations) kinds.insert(it.kind);
    return kinds;
}

Rehearsal rehearse(const Subject& subject, const std::function<void(std::size_t)>& progress) {
    Rehearsal rehearsal;
    const Ending explored = run_in_child([&](Place& place) { return explore(subject, place); },
                                         subject.limits(), Child::Exit::Quick);
    std::vector<Scenario> scenarios{plain_life()};
    if (explored.kind == Ending::Kind::Done) {
        const Json told = Json::parse(explored.result);
        rehearsal.why_not = told["why_not"];
        if (!rehearsal.why_not.empty()) return rehearsal;
        scenarios = scenarios_in(told["scenarios"]);
    } else {
        rehearsal.lives.push_back({scenarios[0], explored, {}});
        // The plain life would get no further.
        for (const char* step : {"load", "menu", "idle"})
            if (explored.step == step) return rehearsal;
    }
    Crew crew(subject.limits(), Child::Exit::Proper);
    const std::size_t before = rehearsal.lives.size();
    rehearsal.lives.resize(before + scenarios.size());
    std::size_t done = 0;
    for (std::size_t i = 0; i < scenarios.size(); ++i) {
        RehearsedLife& life = rehearsal.lives[before + i];
        life.scenario = std::move(scenarios[i]);
        crew.run(
            [&](Place& place) {
                Life lived(subject.plugin, subject.scene, {}, place);
                lived.live(life.scenario);
                return violations_text(lived.violations());
            },
            [&](const Ending& ending) {
                life.ending = ending;
                if (life.ended_well()) life.violations = violations_in(ending.result);
                if (ending.leaked)
                    life.violations.push_back(
                        {ViolationKind::Leak, "memory is not freed at the end"});
                progress(++done);
            });
    }
    crew.finish();
    return rehearsal;
}

} // namespace minihost
