// The dialog as a user sees it: where the controls are, which are on, which are enabled.

#include "tests/host/entry/PluginTest.h"

#include <map>
#include <set>

namespace {

using minihost::HostOptions;

const std::string plain_scene = scene_of({solid("S"), camera("Camera")});

HostOptions without(std::set<std::string> what) {
    HostOptions options;
    options.without = std::move(what);
    return options;
}

const std::map<std::string, double> initial_numbers = {
    {"size.x", 1000},       {"size.y", 1000},      {"size.z", 1000},
    {"start.x", 0},         {"start.y", 0},        {"start.z", 0},
    {"angle.min", 50},      {"angle.max", 50},     {"angle.increment", 0},
    {"distance.min", 360},  {"distance.max", 360}, {"distance.increment", 0},
    {"y-axis.min", 50},     {"y-axis.max", 50},    {"y-axis.increment", 0},
    {"scale-to.size", 100}, {"repeat.count", 1}};

std::map<std::string, Json> controls_by_name(PluginHost& host) {
    std::map<std::string, Json> named;
    const Json state = host.state();
    for (const Json& control : state["controls"])
        if (!control["name"].is_null()) named[control["name"]] = control;
    return named;
}

class EveryDialog : public testing::TestWithParam<bool> {
  protected:
    HostOptions options() const { return GetParam() ? HostOptions() : without({"panels"}); }
};
INSTANTIATE_TEST_SUITE_P(PanelOrWindow, EveryDialog, testing::Bool());

TEST_P(EveryDialog, HasItsControlsWithTheirInitialValues) {
    PluginHost host(plain_scene, options());
    host.play("open");
    const Json state = host.state();
    EXPECT_EQ(state["dialog"]["kind"], GetParam() ? "panel" : "window");
    EXPECT_EQ(state["dialog"]["title"], "Tamborel");
    EXPECT_EQ(state["dialog"]["visible"], true);
    EXPECT_EQ(state["menu"], Json({{"text", "Tamborel"}, {"enabled", true}, {"checked", true}}));

    auto named = controls_by_name(host);
    EXPECT_EQ(named.size(), 41u);
    EXPECT_EQ(named["apply"]["rect"], Json({420, 434, 440, 492}));
    EXPECT_EQ(named["camera"]["rect"], Json({66, 342, 85, 482}));
    EXPECT_EQ(named["distance.increment"]["rect"], Json({237, 220, 252, 295})) << "5 less high";
    const Json& sized_by_label = named["crop-text"]["rect"];
    EXPECT_EQ(sized_by_label[0], 396);
    EXPECT_EQ(sized_by_label[1], 25);
    EXPECT_EQ(sized_by_label[3], 25 + 18) << "the button without its label";
    const std::set<std::string> on = {"orientation.none", "use-comp-center", "crop-text"};
    for (const auto& [name, control] : named) {
        const auto number = initial_numbers.find(name);
        if (number != initial_numbers.end()) {
            EXPECT_EQ(control["value"], number->second) << name;
        } else if (control["kind"] != "button" && control["kind"] != "pop-up") {
            EXPECT_EQ(control["value"], on.count(name) > 0) << name;
        }
    }

    // 20 labels, 23 texts of check boxes and radio buttons, 6 frames with a title each, the
    // version.
    std::map<std::string, int> kinds;
    std::set<std::string> texts;
    for (const Json& control : state["controls"]) {
        ++kinds[control["kind"]];
        if (control["kind"] == "text") texts.insert(control["text"]);
    }
    EXPECT_EQ(kinds, (std::map<std::string, int>{{"box", 6},
                                                 {"button", 1},
                                                 {"check box", 12},
                                                 {"edit", 17},
                                                 {"pop-up", 1},
                                                 {"radio button", 10},
                                                 {"text", 48}}));
    for (const char* text : {"Tamborel v1.4          ", "Insert Keys", "From Center", "Options",
                             "Crop Text Layers To Size Of Other 3D Layers", "Rotate YZ (Inward)"})
        EXPECT_EQ(texts.count(text), 1u) << text;
}

TEST(Dialog, TextsStayWithinTheDialogAndApart) {
    PluginHost host(plain_scene);
    host.play("open");
    const Json controls = host.state()["controls"];
    const auto meet = [](const Json& a, const Json& b) {
        return a[0] < b[2] && b[0] < a[2] && a[1] < b[3] && b[1] < a[3];
    };
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Json& rect = controls[i]["rect"];
        EXPECT_TRUE(rect[0] >= 0 && rect[1] >= 0 && rect[2] <= 450 && rect[3] <= 501)
            << controls[i];
        if (controls[i]["kind"] == "box") continue;
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            if (controls[j]["kind"] == "box") continue;
            // A frame's title is as wide as the frame, so controls may overlap its rectangle.
            const bool title = rect[3].get<int>() - rect[1].get<int>() > 170;
            const Json& other = controls[j]["rect"];
            const bool other_title = other[3].get<int>() - other[1].get<int>() > 170;
            if (!title && !other_title) {
                EXPECT_FALSE(meet(rect, other)) << controls[i] << controls[j];
            }
        }
    }
}

TEST(Dialog, EnablesWhatTheChoicesLeaveMeaningful) {
    PluginHost host(plain_scene);
    const auto enabled = [&](const std::string& name) {
        return host.control(name)["enabled"].get<bool>();
    };
    host.play("open");
    const char* placement[] = {"angle.min",  "angle.increment", "distance.max",
                               "y-axis.min", "start.x",         "start.z"};
    EXPECT_FALSE(enabled("camera"));
    EXPECT_FALSE(enabled("scale-to.size"));
    EXPECT_FALSE(enabled("repeat.count"));
    EXPECT_FALSE(enabled("repeat.sequentially"));
    for (const char* name : placement) EXPECT_TRUE(enabled(name)) << name;

    host.play("set distribute-randomly=on\nset orientation.towards-camera=on\nset scale-to=on\n"
              "set repeat=on");
    for (const char* name : {"camera", "scale-to.size", "repeat.count", "repeat.sequentially"})
        EXPECT_TRUE(enabled(name)) << name;
    for (const char* name : placement) EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(enabled("size.x"));
    EXPECT_THROW(host.play("set angle.min=1"), minihost::ActionError);

    int disabled_texts = 0;
    const Json state = host.state();
    for (const Json& control : state["controls"])
        disabled_texts += control["kind"] == "text" && !control["enabled"].get<bool>();
    EXPECT_EQ(disabled_texts, 13 + 3 + 1); // the block, X Y Z of the start, the frame's title

    // Off and on again: the options still decide.
    host.play("deselect\nidle\nselect S\nidle");
    EXPECT_TRUE(enabled("camera"));
    EXPECT_FALSE(enabled("angle.min"));
    host.play(
        "set orientation.xy=on\nset distribute-randomly=off\nset scale-to=off\nset repeat=off");
    for (const char* name : {"camera", "scale-to.size", "repeat.count", "repeat.sequentially"})
        EXPECT_FALSE(enabled(name)) << name;
    for (const char* name : placement) EXPECT_TRUE(enabled(name)) << name;
}

TEST_P(EveryDialog, IsDisabledAsAWholeWhileThereIsNothingToPlace) {
    const auto enabled = [](PluginHost& host) {
        std::vector<std::string> names;
        const Json state = host.state();
        for (const Json& control : state["controls"])
            if (control["enabled"].get<bool>() && control["kind"] != "box")
                names.push_back(control["name"].is_null() ? control["text"] : control["name"]);
        return names;
    };
    PluginHost host(plain_scene, options());
    host.play("deselect\nmenu");
    EXPECT_THAT(enabled(host), testing::IsEmpty()) << "from the first refresh on";
    if (GetParam()) {
        host.play("close-panel\nmenu");
        EXPECT_THAT(enabled(host), testing::IsEmpty()) << "made anew";
    }
    const Json before = host.state();
    host.play("idle\nidle");
    EXPECT_EQ(host.state()["controls"], before["controls"])
        << "a further idle call changes nothing";

    host.play("select S\nidle");
    EXPECT_TRUE(host.control("orientation.towards-camera")["enabled"].get<bool>());
    host.play("remove Camera\nidle\ndeselect\nidle\nidle");
    EXPECT_THAT(enabled(host), testing::IsEmpty());
    host.play("select S\nidle");
    EXPECT_FALSE(host.control("orientation.towards-camera")["enabled"].get<bool>());
    EXPECT_TRUE(host.control("size.x")["enabled"].get<bool>());
}

TEST(Dialog, CroppingNeedsANeighbourAndAHostThatMeasures) {
    const std::string title = R"({"name": "T", "kind": "text", "three_d": true})";
    const auto can_crop = [](const std::string& scene, HostOptions options) {
        PluginHost host(scene, std::move(options));
        host.play("open");
        return host.control("crop-text")["enabled"].get<bool>();
    };
    EXPECT_TRUE(can_crop(scene_of({title, solid("S")}), {}));
    EXPECT_FALSE(can_crop(scene_of({title}), {}));
    EXPECT_FALSE(can_crop(scene_of({title, solid("S")}), without({"layer-suite-8"})));
}

TEST(Dialog, PanelOpensClosesAndComesBackNew) {
    PluginHost host(plain_scene);
    EXPECT_EQ(host.state()["dialog"]["exists"], false);
    EXPECT_EQ(host.state()["menu"]["checked"], false);
    host.play("menu");
    EXPECT_EQ(host.state()["menu"]["checked"], true);
    host.play("set angle.min=7\nset orientation.towards-camera=on\nmenu");
    EXPECT_EQ(host.state()["menu"]["checked"], false);
    EXPECT_EQ(host.state()["dialog"]["exists"], true);
    host.play("menu");
    EXPECT_EQ(host.control("angle.min")["value"], 7) << "the same panel";

    host.play("close-panel");
    EXPECT_EQ(host.state()["menu"]["checked"], false);
    host.play("menu\nidle");
    EXPECT_EQ(host.control("angle.min")["value"], 50) << "made anew";
    EXPECT_EQ(host.control("camera")["entries"], Json({"Camera"}));
    EXPECT_EQ(host.control("orientation.towards-camera")["enabled"], true);
    host.play("set orientation.towards-camera=on\nclick apply");
    EXPECT_EQ(host.state()["undo"].size(), 1u);
}

TEST(Dialog, FloatingDialogIsShownAgainAsItWas) {
    PluginHost host(plain_scene, without({"panels"}));
    host.play("menu\nset angle.min=7\nmenu\nmenu");
    EXPECT_EQ(host.state()["dialog"]["kind"], "window");
    EXPECT_EQ(host.state()["dialog"]["visible"], true);
    EXPECT_EQ(host.control("angle.min")["value"], 7);
    host.play("set angle.max=7\nclick apply");
    EXPECT_EQ(host.state()["undo"], Json({"Tamborel"}));
}

} // namespace
