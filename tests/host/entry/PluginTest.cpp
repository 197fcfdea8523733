#include "tests/host/entry/PluginTest.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/State.h"
#include "minihost/model/SceneReader.h"

using namespace minihost;

PluginHost::PluginHost(const std::string& scene, HostOptions options, bool load)
    : session(parse_scene(scene, "test scene"), std::move(options), make_dialog_driver(), out,
              [this](const std::string& line) { messages.push_back(line); }) {
    session.host().log.set_sink([this](const std::string& line) { _calls.push_back(line); });
    if (load) session.load(PLUGIN);
}

PluginHost::~PluginHost() {
    session.unload();
}

void PluginHost::play(const std::string& actions) {
    for (const ParsedAction& action : parse_actions(actions, "actions"))
        run_action(session, action);
}

Json PluginHost::state() {
    return Json::parse(state_line(session));
}

Json PluginHost::control(const std::string& name) {
    const Json all = state();
    for (const Json& control : all["controls"])
        if (control["name"] == name) return control;
    return nullptr;
}

const Layer& PluginHost::layer(const std::string& name) const {
    for (const Layer* layer : const_cast<Session&>(session).host().document.scene().layers())
        if (layer->name == name) return *layer;
    throw std::runtime_error("no layer " + name);
}

std::vector<std::string> PluginHost::layer_names() const {
    std::vector<std::string> names;
    for (const Layer* layer : const_cast<Session&>(session).host().document.scene().layers())
        names.push_back(layer->name);
    return names;
}

std::vector<std::string> PluginHost::new_calls() {
    std::vector<std::string> calls;
    for (const std::string& line : std::exchange(_calls, {})) {
        const Json call = Json::parse(line);
        std::string suite = call["suite"];
        if (suite == "SPBasic" || suite == "PF AE App Suite") continue;
        suite = suite.substr(5, suite.find(" Suite") - 5); // "AEGP Stream Suite"
        std::string name = suite + "." + call["call"].get<std::string>();
        if (call["args"].contains("stream")) name += " " + call["args"]["stream"].dump();
        calls.push_back(name);
    }
    return calls;
}

std::string scene_of(const std::vector<std::string>& layers) {
    std::string all, selection;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        all += (i ? "," : "") + layers[i];
        selection += (i ? "," : "") + std::to_string(i);
    }
    return R"({"format": "minihost scene 1", "composition": {"name": "C", "width": 1000, "height": 800},
        "layers": [)" +
           all + R"(], "selection": [)" + selection + "]}";
}

std::string solid(const std::string& name, int width, int height, const std::string& more) {
    return R"({"name": ")" + name + R"(", "kind": "solid", "three_d": true, "source": {"width": )" +
           std::to_string(width) + R"(, "height": )" + std::to_string(height) + "}" +
           (more.empty() ? "" : ", " + more) + "}";
}

std::string camera(const std::string& name, const std::string& more) {
    return R"({"name": ")" + name + R"(", "kind": "camera")" + (more.empty() ? "" : ", " + more) +
           "}";
}

Vec3 from_centre(const Layer& layer) {
    const Vec3& p = layer.transform.position;
    return {p[0] - 500, p[1] - 400, p[2]};
}

testing::Matcher<Vec3> Near(double x, double y, double z, double tolerance) {
    using testing::DoubleNear;
    return testing::ElementsAre(DoubleNear(x, tolerance), DoubleNear(y, tolerance),
                                DoubleNear(z, tolerance));
}
