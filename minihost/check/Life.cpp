#include "minihost/check/Life.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/model/SceneReader.h"

#include <cstdio>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr int most_lines_shown = 500;

} // namespace

Life::Life(const std::string& plugin, const std::string& scene, HostOptions options, Place& place)
    : _place(place),
      _plugin(plugin),
      _session(parse_scene(scene, "the scene"), std::move(options), make_screen(), _printed,
               [this](const std::string& line) { say(line); }) {}

void Life::say(const std::string& line) {
    if (++_lines_said <= most_lines_shown) std::fprintf(stderr, "%s\n", line.c_str());
}

bool Life::load() {
    _place.enter("load");
    try {
        _session.load(_plugin);
        _loaded = true;
    } catch (const std::runtime_error& error) { // LoadError, or of the table of names
        _why_not = error.what();
    }
    return _loaded;
}

bool Life::play(const std::string& line) {
    _place.enter(line);
    const ParsedAction action = parse_action(split_words(line, "check"), "check");
    Host& host = _session.host();
    bool is_done = true;
    try {
        if (!action.action->posts_event) _session.settle();
        action.action->run(_session, action.arguments);
    } catch (const ActionError&) {
        is_done = false;
    } catch (const ControlError&) {
        is_done = false;
    } catch (...) {
        host.record_violation(ViolationKind::HookException,
                              "what was thrown left the plug-in at \"" + line + "\"");
    }
    if (host.document.open_groups() > 0)
        host.record_violation(ViolationKind::OpenUndoGroup,
                              "an undo group is left open after \"" + line + "\"");
    return is_done;
}

void Life::unload() {
    _place.enter("unload");
    _session.unload();
    _loaded = false;
}

void Life::live(const Scenario& scenario) {
    for (std::size_t part = 0; part < parts(scenario); ++part) live_part(scenario, part);
}

void Life::live_part(const Scenario& scenario, std::size_t part) {
    if (part == 0)
        load();
    else if (part > scenario.steps.size())
        unload();
    else if (_loaded)
        play(scenario.steps[part - 1].line);
}

Phase Life::phase(const Scenario& scenario, std::size_t part) {
    if (part == 0) return Phase::Entry;
    return part > scenario.steps.size() ? Phase::Death : scenario.steps[part - 1].phase;
}

void Life::record_calls() {
    _session.host().log.set_sink([this](const std::string& line) { _calls.push_back(line); });
}

std::string call_in(const std::string& line) {
    const Json call = Json::parse(line);
    return call["suite"].get<std::string>() + "." + call["call"].get<std::string>();
}

std::string violations_text(const std::vector<Violation>& violations) {
    Json list = Json::array();
    for (const Violation& it : violations) list.push_back({static_cast<int>(it.kind), it.text});
    return list.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<Violation> violations_in(const std::string& text) {
    std::vector<Violation> violations;
    for (const Json& it : Json::parse(text))
        violations.push_back(
            {static_cast<ViolationKind>(it[0].get<int>()), it[1].get<std::string>()});
    return violations;
}

} // namespace minihost
