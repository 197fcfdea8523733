// A user of the plug-in's panel whose hands do anything, over a scene that changes meanwhile: no
// misuse of the host, no failing hook, nothing held at the end.

#include "fuzz/events/driver.h"
#include "fuzz/events/UsersHands.h"
#include "minihost/actions/Actions.h"
#include "minihost/model/SceneReader.h"

#include <iterator>
#include <sstream>

using namespace minihost;

namespace {

constexpr const char* scene = R"({"format": "minihost scene 1", "layers": [
    {"name": "Camera", "kind": "camera"},
    {"name": "A", "kind": "solid", "three_d": true, "source": {"width": 80, "height": 60}},
    {"name": "B", "kind": "text", "three_d": true,
     "keyframes": {"position": [{"time": 1, "value": [1, 2, 3]}]}},
    {"name": "C", "kind": "shape", "three_d": true}], "selection": [1, 2, 3]})";

const Words deeds[] = {{"idle"},
                       {"idle"},
                       {"menu"},
                       {"open"},
                       {"close-panel"},
                       {"select-all"},
                       {"deselect"},
                       {"select", "#1", "#0"},
                       {"undo"},
                       {"redo"},
                       {"add-camera", "Another"},
                       {"remove", "#0"},
                       {"rename", "#0", "\xc3\xbc"},
                       {"time", "2"},
                       {"active", "none"},
                       {"active", "composition"},
                       {"set", "orientation.towards-camera=on"},
                       {"set", "repeat=on"},
                       {"set", "angle.increment=0.001"},
                       {"click", "apply"},
                       {"state"}};
// Scenes that grow at every press would be all that is tried.
constexpr std::size_t most_layers = 100;

void do_one(Session& session, fuzz::Bytes& bytes) {
    const auto what = bytes.take<std::uint8_t>();
    if (what >= 80) {
        session.enter([&] { fuzz::use_hands(bytes); });
        return;
    }
    try {
        run_action(session, parse_action(deeds[what % std::size(deeds)], "input"));
    } catch (const ActionError&) { // a disabled control, no such layer
    }
}

} // namespace

void fuzz::try_input(Bytes& bytes) {
    std::ostringstream out;
    std::string reports;
    Session session(parse_scene(scene, "scene"), {}, make_dialog_driver(), out,
                    [&](const std::string& line) {
                        // The scene may lose a layer that the plug-in notices only at its next idle
                        // call.
                        if (!line.ends_with("a layer that is no more")) reports += line + "\n";
                    });
    session.load(PLUGIN);
    run_action(session, parse_action({"open"}, "input"));
    while (!bytes.empty() && session.host().document.scene().layer_count() <= most_layers)
        do_one(session, bytes);
    session.enter(let_go);
    for (const std::string& line : session.unload()) reports += line + "\n";
    if (session.host().hook_errors() == 0 && reports.empty()) return;
    std::fputs(reports.c_str(), stderr);
    require(false, "the plug-in keeps the host's rules");
}
