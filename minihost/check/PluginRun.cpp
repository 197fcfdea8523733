#include "minihost/check/PluginRun.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/model/SceneReader.h"

#include <cstdio>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr int max_lines_reported = 500;

} // namespace

PluginRun::PluginRun(const std::string& plugin, const std::string& scene, HostOptions options,
                     ChildProgress& progress)
    : _progress(progress),
      _plugin(plugin),
      _session(parse_scene(scene, "the scene"), std::move(options), make_dialog_driver(), _printed,
               [this](const std::string& line) { report(line); }) {}

void PluginRun::report(const std::string& line) {
    if (++_lines_reported <= max_lines_reported) std::fprintf(stderr, "%s\n", line.c_str());
}

bool PluginRun::load() {
    _progress.checkpoint("load");
    try {
        _session.load(_plugin);
        _loaded = true;
    } catch (const std::runtime_error& error) { // LoadError, or a bad file of control names
        _load_error = error.what();
    }
    return _loaded;
}

bool PluginRun::play(const std::string& line) {
    _progress.checkpoint(line);
    const ParsedAction parsed = parse_action(split_words(line, "check"), "check");
    Host& host = _session.host();
    bool is_possible = true;
    try {
        if (!parsed.action->posts_event) _session.settle();
        parsed.action->run(_session, parsed.arguments);
    } catch (const ActionError&) {
        is_possible = false;
    } catch (const ControlError&) {
        is_possible = false;
    } catch (...) {
        host.record_violation(ViolationKind::HookException,
                              "what was thrown left the plug-in at \"" + line + "\"");
    }
    if (host.document.open_groups() > 0)
        host.record_violation(ViolationKind::OpenUndoGroup,
                              "an undo group is left open after \"" + line + "\"");
    return is_possible;
}

void PluginRun::unload() {
    _progress.checkpoint("unload");
    _session.unload();
    _loaded = false;
}

void PluginRun::play(const Scenario& scenario) {
    for (std::size_t part = 0; part < scenario.part_count(); ++part) play_part(scenario, part);
}

void PluginRun::play_part(const Scenario& scenario, std::size_t part) {
    const Phase phase = scenario.phase_of_part(part);
    if (phase == Phase::Entry)
        load();
    else if (phase == Phase::Death)
        unload();
    else if (_loaded)
        play(scenario.name_of_part(part));
}

void PluginRun::record_calls() {
    _session.host().log.set_sink([this](const std::string& line) { _calls.push_back(line); });
}

std::string call_name(const std::string& line) {
    const Json call = Json::parse(line);
    return call["suite"].get<std::string>() + "." + call["call"].get<std::string>();
}

std::string violations_to_json(const std::vector<Violation>& violations) {
    Json list = Json::array();
    for (const Violation& it : violations) list.push_back({static_cast<int>(it.kind), it.text});
    return list.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Violation> violations_from_json(const std::string& json) {
    std::vector<Violation> violations;
    for (const Json& it : Json::parse(json))
        violations.push_back(
            {static_cast<ViolationKind>(it[0].get<int>()), it[1].get<std::string>()});
    return violations;
}

std::string violations_of_run(const std::string& plugin, const std::string& scene,
                              HostOptions options, const Scenario& scenario,
                              ChildProgress& progress) {
    PluginRun run(plugin, scene, std::move(options), progress);
    run.play(scenario);
    return violations_to_json(run.violations());
}

} // namespace minihost
