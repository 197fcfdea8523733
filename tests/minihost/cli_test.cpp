// The program: verbs, options, files and exit statuses, with a small test plug-in.

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/ControlNames.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "tests/minihost/support/files.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const sample = R"({"format": "minihost scene 1",
  "layers": [{"name": "A", "kind": "solid", "three_d": true, "source": {"width": 9, "height": 9}},
             {"name": "The B", "kind": "solid", "source": {"width": 9, "height": 9}}],
  "selection": [0]})";

class Program : public testing::Test {
  protected:
    Program() { write_file(folder / "scene.json", sample); }

    // Runs the program in the folder. Standard output goes to `printed`, standard error to
    // `errors`.
    int run(const std::string& arguments, const std::string& actions = "") {
        write_file(folder / "actions.txt", actions);
        const std::string command = "cd '" + folder.string() + "' && " + MINIHOST " " + arguments +
                                    " >printed 2>errors <actions.txt";
        const int status = std::system(command.c_str());
        printed = read_file(folder / "printed");
        errors = read_file(folder / "errors");
        return WEXITSTATUS(status);
    }
    int run_actions(const std::string& actions, const std::string& options = "") {
        return run("run scene.json actions.txt --plugin " MODULES "/arranger.plugin " + options,
                   actions);
    }
    json output() const { return json::parse(read_file(folder / "out.json")); }
    json state() const { return json::parse(printed); }
    bool exists(const char* name) const { return fs::exists(folder / name); }

    TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    std::string printed, errors;
};

TEST_F(Program, BadArgumentsAndBadScenesEndWithTwoAndTouchNothing) {
    write_file(folder / "bad.json", R"({"format": "minihost scene 1", "layers": [{"name": 7}]})");
    const std::pair<const char*, const char*> cases[] = {
        {"", "subcommand"},
        {"fly scene.json", "subcommand"},
        {"apply", "SCENE"},
        {"apply scene.json --nonsense", "--nonsense"},
        {"apply scene.json --set angle", "NAME=VALUE"},
        {"apply scene.json --without panels --without legs", "legs"},
        {"apply scene.json --fail Walk", "Walk"},
        {"apply scene.json --fail 'AEGP Item Suite.Get'", "no such call"},
        {"apply scene.json --misbehave lies", "lies"},
        {"apply scene.json --palette blue", "blue"},
        {"apply scene.json --scale 0", "--scale"},
        {"apply scene.json --preview p.gif", "p.gif"},
        {"apply scene.json --panel p.svg", "p.svg"},
        {"show scene.json --frames -1", "--frames"},
        {"show scene.json --window 899x600", "--window"},
        {"show scene.json --scale 5", "--scale"},
        {"show scene.json --screenshot s.jpg", "s.jpg"},
        {"apply none.json", "none.json: cannot be read"},
        {"apply bad.json", "bad.json: layers[0].name: must be a text"},
        {"run scene.json none.txt", "none.txt: cannot be read"},
    };
    write_file(folder / "out.json", "before");
    for (const auto& [arguments, cause] : cases) {
        const std::string outputs =
            std::string(arguments).empty() ? "" : " --out out.json --calls calls.txt";
        EXPECT_EQ(run(arguments + outputs), 2) << arguments;
        EXPECT_THAT(errors, HasSubstr(cause)) << arguments;
        EXPECT_EQ(read_file(folder / "out.json"), "before") << arguments;
        EXPECT_FALSE(exists("calls.txt")) << arguments;
    }
    for (const auto& [line, cause] : {std::pair{"fly", "no action \"fly\""},
                                      {"move A", "is used as: move LAYER INDEX"},
                                      {"idle 3", "takes no argument"},
                                      {"set x", "is used as: set NAME=VALUE"},
                                      {"rename A \"B", "a quote is not closed"}}) {
        EXPECT_EQ(run_actions(std::string("# two\n\n  ") + line + "\n", "--out out.json"), 2);
        EXPECT_THAT(errors, AllOf(HasSubstr("actions.txt:3: "), HasSubstr(cause)));
        EXPECT_EQ(read_file(folder / "out.json"), "before");
    }
}

TEST_F(Program, ShowsAWindowForSoManyFrames) {
    ::setenv("SDL_VIDEODRIVER", "dummy", 1);
    const std::string options = "show scene.json --plugin " MODULES "/arranger.plugin --scale 1.5 "
                                "--window 901x600 --frames ";
    EXPECT_EQ(run(options + "3 --screenshot shot.png --out out.json"), 0) << errors;
    EXPECT_EQ(png_size(read_file(folder / "shot.png")), std::pair(1352, 900)); // 1351.5, rounded
    EXPECT_EQ(output()["selection"], json({0}));
    EXPECT_EQ(run(options + "1 --screenshot no/shot.png"), 1);
    EXPECT_THAT(errors, HasSubstr("no/shot.png"));
    ::setenv("SDL_VIDEODRIVER", "none of this name", 1);
    EXPECT_EQ(run(options + "1"), 1);
    EXPECT_THAT(errors, HasSubstr("no desktop"));
    ::unsetenv("SDL_VIDEODRIVER");
}

TEST_F(Program, HelpAndVersionArePrinted) {
    EXPECT_EQ(run("--version"), 0);
    EXPECT_EQ(printed, "minihost 1.4\n");
    EXPECT_EQ(run("--help"), 0);
    for (const Action& action : actions()) EXPECT_THAT(printed, HasSubstr(action.sentence));
    EXPECT_EQ(run("run --help"), 0);
    EXPECT_THAT(printed, HasSubstr("--without"));
    for (const Misbehaviour& it : misbehaviours()) EXPECT_THAT(printed, HasSubstr(it.sentence));
}

TEST_F(Program, TheCommandIsOneStepThatUndoTakesBack) {
    EXPECT_EQ(run_actions("menu\nsave after.json\nundo\nstate\nredo\n",
                          "--out out.json --calls calls.txt --preview p.svg"),
              0);
    EXPECT_THAT(errors, IsEmpty());
    EXPECT_EQ(output(), json::parse(read_file(folder / "after.json")));
    EXPECT_EQ(output()["layers"][0]["transform"]["position"], json({1, 2, 3}));
    EXPECT_EQ(output()["undo"], json({"Arrange"}));
    EXPECT_EQ(state()["undo"], json::array());
    EXPECT_EQ(state()["redo"], json({"Arrange"}));
    EXPECT_EQ(state()["menu"], json({{"text", "Arrange"}, {"enabled", true}, {"checked", false}}));
    EXPECT_EQ(state()["dialog"]["exists"], false);
    EXPECT_TRUE(exists("p.svg"));
    std::istringstream calls(read_file(folder / "calls.txt"));
    std::string line;
    for (int n = 1; std::getline(calls, line); ++n) EXPECT_EQ(json::parse(line)["n"], n);
    EXPECT_EQ(json::parse(json::parse(read_file(folder / "after.json")).dump()), output());
}

TEST_F(Program, ActionsEditTheComposition) {
    EXPECT_EQ(run_actions("add-camera \"My \\\"Cam\\\"\"\nselect \"The B\" #1\nrename A C\n"
                          "move C 2\ntime 2.5\nactive footage\nstate\n# done\n",
                          "--out out.json"),
              0)
        << errors;
    EXPECT_EQ(state()["selection"], json({1, 2}));
    EXPECT_EQ(state()["undo"], json({"Add Layer", "Rename Layer", "Move Layer"}));
    const json layers = output()["layers"];
    EXPECT_EQ(layers[0]["name"], "My \"Cam\"");
    EXPECT_EQ(layers[0]["transform"]["point_of_interest"], json({960, 540, 0}));
    EXPECT_EQ(layers[1]["name"], "The B");
    EXPECT_EQ(layers[2]["name"], "C");
    EXPECT_EQ(output()["composition"]["time"], 2.5);
    EXPECT_EQ(output()["active"], "footage");
    EXPECT_EQ(run_actions("rename A D\nload out.json\nstate\nload none.json\n"), 1);
    EXPECT_EQ(state()["undo"], json({"Add Layer", "Rename Layer", "Move Layer"})) << "the file's";
    EXPECT_EQ(state()["selection"], json({1, 2}));
    EXPECT_THAT(errors, HasSubstr("none.json: cannot be read"));
    EXPECT_EQ(run_actions("select-all\nremove #0\nstate\n"), 0);
    EXPECT_EQ(state()["selection"], json({0}));
    EXPECT_EQ(run("run out.json - --plugin " MODULES "/arranger.plugin", "deselect\nstate\n"), 0);
    EXPECT_EQ(state()["selection"], json::array());
}

TEST_F(Program, WhatCannotBeDoneEndsWithOneAndTheSceneAsItIsThen) {
    for (const char* action :
         {"select D", "select #2", "undo", "redo", "move A 2", "move A x", "time 1e9",
          "active both", "close-panel", "set size.x=3", "click apply", "answer 0", "panel p.png",
          "panel p.gif", "save /nowhere/s.json", "preview p.gif"}) {
        EXPECT_EQ(run_actions(std::string("time 3\n") + action + "\ntime 4\n", "--out out.json"), 1)
            << action;
        EXPECT_THAT(errors, HasSubstr("actions.txt:2: ")) << action;
        EXPECT_EQ(output()["composition"]["time"], 3) << action;
    }
    EXPECT_EQ(run("apply scene.json --plugin ./none.plugin"), 1);
    EXPECT_THAT(errors, HasSubstr("./none.plugin: the plug-in cannot be opened"));
    EXPECT_EQ(run_actions("idle", "--calls /nowhere/c"), 1);
}

TEST_F(Program, ErrorsOfThePluginAreReportedAndEndWithOne) {
    EXPECT_EQ(
        run_actions("menu\ntime 3", "--out out.json --fail 'AEGP Stream Suite.SetStreamValue'"), 1);
    EXPECT_THAT(errors, HasSubstr("command hook returned error 4"));
    EXPECT_EQ(output()["composition"]["time"], 3) << "the host goes on";
    EXPECT_EQ(output()["undo"], json::array());
    EXPECT_EQ(run_actions("active none\nmenu\nstate"), 0) << "a message is no error";
    EXPECT_EQ(state()["alerts"], json({"No composition is active."}));
    EXPECT_EQ(run("run scene.json - --plugin " MODULES "/failing_entry.plugin", "idle"), 1);
    EXPECT_EQ(
        run("apply scene.json --set size.x=1 --set size.y=1 --plugin " MODULES "/arranger.plugin"),
        1);
    EXPECT_THAT(errors, HasSubstr("set: control 'size.x': the dialog is not there"));
    ::setenv("TEST_PLUGIN_HOLDS", "1", 1);
    EXPECT_EQ(run_actions("idle"), 0);
    ::unsetenv("TEST_PLUGIN_HOLDS");
    EXPECT_THAT(errors, HasSubstr("the plug-in still holds one collection"));
}

TEST(ActionFile, WordsAreSplitAtBlanksOutsideQuotes) {
    EXPECT_THAT(split_words("  a \"b c\"\td\r", ""), ElementsAre("a", "b c", "d"));
    EXPECT_THAT(split_words("set camera=\"Camera 1\"", ""), ElementsAre("set", "camera=Camera 1"));
    EXPECT_THAT(split_words(R"("\"\\\n" "")", ""), ElementsAre("\"\\\\n", ""));
    EXPECT_THAT(split_words(" # a", ""), IsEmpty());
    EXPECT_THAT(split_words("select #1", ""), ElementsAre("select", "#1"));
}

TEST_F(Program, ControlNamesStandBesideTheModule) {
    write_file(folder / "X.controls.json", R"({"apply": 3, "size.x": 210})");
    const ControlNames names = ControlNames::beside(folder / "X.plugin");
    EXPECT_EQ(names.id_of("size.x"), 210);
    EXPECT_EQ(names.id_of("220"), 220);
    EXPECT_EQ(names.id_of("size"), std::nullopt);
    EXPECT_EQ(names.id_of("0"), std::nullopt);
    EXPECT_EQ(names.name_of(3), "apply");
    EXPECT_EQ(names.name_of(4), "");
    EXPECT_EQ(ControlNames::beside(folder / "Y.plugin").id_of("apply"), std::nullopt);
    for (const char* bad : {"[]", "{\"a\": \"3\"}", "{\"a\": 0}", "{"}) {
        write_file(folder / "X.controls.json", bad);
        EXPECT_THROW(ControlNames::beside(folder / "X.plugin"), SceneError) << bad;
    }
}

} // namespace
} // namespace minihost
