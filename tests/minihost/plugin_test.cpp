// The host with the real plug-in: its panel and window, its controls used as by a user, Apply as
// one step.

#include "minihost/actions/Actions.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace minihost {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const scene = R"({"format": "minihost scene 1",
  "composition": {"width": 400, "height": 300, "time": 1},
  "layers": [
    {"name": "A", "kind": "solid", "three_d": true, "source": {"width": 20, "height": 10}},
    {"name": "B", "kind": "solid", "three_d": true, "source": {"width": 20, "height": 10}},
    {"name": "Flat", "kind": "solid", "source": {"width": 20, "height": 10}},
    {"name": "Cam", "kind": "camera"}],
  "selection": [0, 1]})";

class Plugin : public testing::Test {
  protected:
    void start(HostOptions options = {}) {
        session.emplace(parse_scene(scene, "test"), std::move(options), make_dialog_driver(),
                        printed, [this](const std::string& line) { messages.push_back(line); });
        session->load(PLUGIN);
    }
    void act(std::initializer_list<Words> lines) {
        for (const Words& words : lines) run_action(*session, parse_action(words, "test"));
    }
    json state() {
        printed.str("");
        act({{"state"}});
        return json::parse(printed.str());
    }
    json control(const std::string& name) {
        const json all = state();
        for (const json& it : all["controls"])
            if (it["name"] == name) return it;
        ADD_FAILURE() << name;
        return {};
    }
    json scene_now() { return json::parse(scene_text(session->host().document)); }
    std::string refusal(const Words& words) {
        try {
            act({words});
        } catch (const ActionError& error) {
            return error.what();
        }
        return "done";
    }

    std::ostringstream printed;
    std::vector<std::string> messages;
    std::optional<Session> session;
};

TEST_F(Plugin, TogglesItsPanelAndRebuildsAClosedOne) {
    start();
    EXPECT_EQ(state()["menu"], json({{"text", "Tamborel"}, {"enabled", true}, {"checked", false}}));
    EXPECT_EQ(state()["dialog"]["exists"], false);
    act({{"open"}, {"set", "angle.max=30"}});
    EXPECT_EQ(
        state()["dialog"],
        json({{"exists", true}, {"visible", true}, {"kind", "panel"}, {"title", "Tamborel"}}));
    EXPECT_EQ(state()["menu"]["checked"], true);
    EXPECT_EQ(control("angle.max")["value"], 30);
    EXPECT_EQ(control("apply")["kind"], "button");
    EXPECT_EQ(control("apply")["id"], 3);
    act({{"menu"}});
    EXPECT_EQ(state()["dialog"]["visible"], false);
    EXPECT_THAT(refusal({"set", "angle.max=40"}), HasSubstr("not visible"));
    act({{"menu"}});
    EXPECT_EQ(control("angle.max")["value"], 30) << "hidden and shown again it is the same";
    act({{"close-panel"}, {"menu"}, {"idle"}});
    EXPECT_EQ(control("angle.max")["value"], 50) << "rebuilt";
    EXPECT_THAT(session->unload(), IsEmpty());
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(Plugin, ShowsAWindowOnAHostWithoutPanels) {
    start({.without = {"panels"}, .failures = {}});
    act({{"open"}, {"set", "size.x=7"}, {"menu"}});
    EXPECT_EQ(state()["dialog"]["kind"], "window");
    EXPECT_EQ(state()["dialog"]["visible"], true) << "shown again, not toggled";
    EXPECT_EQ(control("size.x")["value"], 7);
    EXPECT_THAT(refusal({"close-panel"}), HasSubstr("no panel is open"));
    act({{"click", "apply"}});
    EXPECT_EQ(scene_now()["undo"], json({"Tamborel"}));
    EXPECT_THAT(session->unload(), IsEmpty());
}

TEST_F(Plugin, ControlsAreUsedAsAUserWould) {
    start();
    act({{"add-camera", "Cam 2"}, {"open"}});
    struct Case {
        std::string set, control;
        json value;
    };
    for (const Case& it : {Case{"size.y=12", "size.y", 12},
                           {"size.y=12.75", "size.y", 12.75},
                           {"repeat=on", "repeat", true},
                           {"repeat=on", "repeat", true},
                           {"repeat.count=3", "repeat.count", 3},
                           {"repeat=off", "repeat", false},
                           {"orientation.towards-camera=on", "orientation.towards-camera", true},
                           {"camera=Cam", "camera", "Cam"},
                           {"camera=#0", "camera", "Cam 2"},
                           {"orientation.xy=on", "orientation.xy", true},
                           {"500=on", "orientation.towards-camera", false}}) {
        act({{"set", it.set}});
        EXPECT_EQ(control(it.control)["value"], it.value) << it.set;
    }
    EXPECT_EQ(control("camera")["entries"], json::array({"Cam 2", "Cam"}));
    for (const auto& [set, cause] : {std::pair{"repeat.count=4", "is disabled"},
                                     {"camera=Cam", "is disabled"},
                                     {"apply=on", "no value"},
                                     {"orientation.xy=off", "radio button"},
                                     {"repeat=maybe", "on or off"},
                                     {"9999=1", "not in the dialog"},
                                     {"legs=2", "no control"}})
        EXPECT_THAT(refusal({"set", set}), HasSubstr(cause)) << set;
    act({{"set", "orientation.towards-camera=on"}});
    EXPECT_THAT(refusal({"set", "camera=Cam 9"}), HasSubstr("no entry 'Cam 9'"));
}

TEST_F(Plugin, EventsAreHandledTogetherBeforeTheNextAction) {
    start();
    act({{"add-camera", "Cam 2"}, {"open"}, {"set", "orientation.towards-camera=on"}});
    const auto at = [&](const std::string& name, Words words) {
        const json rect = control(name)["rect"];
        const auto middle = [&](int a, int b) {
            return std::to_string((rect[a].get<double>() + rect[b].get<double>()) / 2);
        };
        words.insert(words.begin() + 2, {middle(1, 3), middle(0, 2)});
        return words;
    };
    const Words on_repeat = at("repeat", {"mouse", "down"});
    Words release = on_repeat;
    release[1] = "up";
    act({on_repeat, {"wait"}, release});
    EXPECT_EQ(control("repeat")["value"], false) << "let go before it moved on";
    act({on_repeat, release});
    EXPECT_EQ(control("repeat")["value"], true);
    act({on_repeat, {"mouse", "move", "1", "1"}, {"mouse", "up", "1", "1"}});
    EXPECT_EQ(control("repeat")["value"], true) << "let go outside";
    act({on_repeat, release, {"wait"}, on_repeat, release});
    EXPECT_EQ(control("repeat")["value"], true) << "twice";

    const Words field = at("angle.max", {"mouse", "down", "double"});
    Words field_up = field;
    field_up[1] = "up";
    act({field, field_up, {"key", "a", "command"}, {"type", "77"}, {"key", "return"}});
    EXPECT_EQ(control("angle.max")["value"], 77);

    const Words camera = at("camera", {"mouse", "down"});
    Words camera_up = camera;
    camera_up[1] = "up";
    act({camera, camera_up, {"key", "end"}, {"key", "return"}});
    EXPECT_EQ(control("camera")["value"], "Cam");
    act({camera, camera_up, {"key", "home"}});
    EXPECT_EQ(control("camera")["value"], "Cam") << "a list without an answer closes";
    act({{"wheel", "20", "20", "0", "-3"}, camera});
    EXPECT_THAT(session->unload(), IsEmpty());
    EXPECT_THAT(messages, IsEmpty());

    start();
    EXPECT_THAT(refusal({"key", "x"}), HasSubstr("not there"));
    act({{"open"}});
    for (const auto& [words, cause] :
         {std::pair{Words{"mouse", "drag", "1", "1"}, "none of down, up, move"},
          {{"mouse", "down", "1", "1e9"}, "no number"},
          {{"mouse", "down", "1", "1", "left"}, "none of right, double, shift"},
          {{"wheel", "1", "1", "nan", "1"}, "no number"},
          {{"key", "enter-prise"}, "no key"},
          {{"key", "x", "hyper"}, "none of shift"},
          {{"type", "\xff"}, "not valid UTF-8"}})
        EXPECT_THAT(refusal(words), HasSubstr(cause)) << words[0];
}

TEST_F(Plugin, ApplyIsOneUndoStep) {
    start();
    const json before = scene_now();
    act({{"open"},
         {"set", "repeat=on"},
         {"set", "repeat.count=2"},
         {"set", "keys.position=on"},
         {"click", "apply"},
         {"idle"}});
    const json after = scene_now();
    EXPECT_EQ(after["undo"], json({"Tamborel"}));
    std::vector<std::string> names;
    for (const json& layer : after["layers"]) names.push_back(layer["name"]);
    EXPECT_THAT(names, ElementsAre("A 2", "A 3", "A", "B 2", "B 3", "B", "Flat", "Cam"));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(after["layers"][i]["keyframes"]["position"][0]["time"], 1) << i;
    EXPECT_EQ(after["layers"][6], before["layers"][2]);
    act({{"undo"}});
    EXPECT_EQ(scene_now(), before);
    act({{"redo"}});
    EXPECT_EQ(scene_now(), after);
    EXPECT_THAT(messages, IsEmpty());
}

} // namespace
} // namespace minihost
