// The window on a real desktop: an X server of the test's own, mouse and keys from xdotool, and the
// saved files compared with those of the command line. Skipped without X server or xdotool.

#include "minihost/check/Child.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/window/WindowLayout.h"
#include "tests/minihost/support/files.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <nlohmann/json.hpp>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;

constexpr double window_width = 1000, window_height = 700;
constexpr auto time_limit = std::chrono::seconds(60); // enough for a loaded machine

std::string output_of(const std::string& command) {
    std::string text;
    std::array<char, 4096> part;
    FILE* pipe = ::popen(command.c_str(), "r");
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), pipe))
        text.append(part.data(), size);
    ::pclose(pipe);
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}

bool wait_until(const std::function<bool()>& done) {
    const auto end = std::chrono::steady_clock::now() + time_limit;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
    }
    return true;
}

pid_t start(const std::vector<std::string>& words, int error_output) {
    const pid_t child = ::fork();
    if (child != 0) return child;
    std::vector<char*> arguments;
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // does not outlive a test that crashes
    ::dup2(error_output, 2);
    // The desktop's libraries leak, some of them unloaded by then.
    ::setenv("LSAN_OPTIONS", "detect_leaks=0", 1);
    ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

// A virtual X server; `display` is empty if there is none.
class Server {
  public:
    Server() {
        int ends[2];
        if (::pipe(ends) != 0) return;
        _process = start({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0",
                          "1300x1000x24", "-nolisten", "tcp"},
                         ::fileno(std::tmpfile()));
        ::close(ends[1]);
        char digit = 0;
        while (::read(ends[0], &digit, 1) == 1 && digit != '\n') display += digit;
        ::close(ends[0]);
    }
    ~Server() {
        if (_process <= 0) return;
        ::kill(_process, SIGTERM);
        ::waitpid(_process, nullptr, 0);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    std::string display;

  private:
    pid_t _process = -1;
};

class Desktop : public testing::Test {
  protected:
    void SetUp() override {
        if (output_of("command -v xdotool").empty()) GTEST_SKIP() << "xdotool is not installed";
        server.emplace();
        if (server->display.empty()) GTEST_SKIP() << "there is no X server";
        ::setenv("DISPLAY", (":" + server->display).c_str(), 1);
        ::setenv("SDL_VIDEODRIVER", "x11", 1);
    }
    void TearDown() override {
        if (process > 0) {
            ::kill(process, SIGKILL);
            ::waitpid(process, nullptr, 0);
        }
    }

    // Opens an example, and finds the controls of the panel.
    void open(const std::string& example) {
        fs::copy_file(fs::path(EXAMPLES) / example, folder / "scene.json");
        fs::copy_file(folder / "scene.json", folder / "before.json");
        scene = json::parse(read_file(folder / "scene.json"));
        const json state = json::parse(play("open\nstate\npanel panel.png\n"));
        for (const json& control : state["controls"])
            if (control["name"].is_string()) controls[control["name"]] = control;
        const auto [width, height] = png_size(read_file(folder / "panel.png"));
        layout = window_layout(window_width, window_height - menu_bar_height,
                               {static_cast<double>(width), static_cast<double>(height)});
        process = start({MINIHOST, "show", (folder / "scene.json").string(), "--scale", "1",
                         "--window", "1000x700"},
                        2);
        ASSERT_TRUE(wait_until([&] {
            window = output_of("xdotool search --onlyvisible --pid " + std::to_string(process) +
                               " 2>/dev/null");
            return !window.empty() && title() == "scene.json";
        }));
        xdo("windowfocus --sync " + window);
        let_idle_calls_pass(); // a press that comes with the focus only gives focus
    }

    // Plays actions on the command line, from the same file, and returns what it prints.
    std::string play(const std::string& actions) {
        write_file(folder / "actions.txt", actions);
        return output_of("cd '" + folder.string() +
                         "' && " MINIHOST " run before.json actions.txt --scale 1");
    }
    void expect_same_as(const std::string& actions) {
        play(actions + "save played.json\n");
        EXPECT_EQ(json::parse(read_file(folder / "scene.json")),
                  json::parse(read_file(folder / "played.json")));
    }

    void xdo(const std::string& arguments) { output_of("xdotool " + arguments); }
    std::string title() { return output_of("xdotool getwindowname " + window + " 2>/dev/null"); }
    bool title_becomes(const std::string& wanted) {
        return wait_until([&] { return title() == wanted; });
    }
    void key(const std::string& keys) { xdo("key --delay 20 " + keys); }
    void type(const std::string& text) { xdo("type --delay 20 '" + text + "'"); }
    static std::string at(double x, double y) {
        return " " + std::to_string(int(x)) + " " + std::to_string(int(y + menu_bar_height)) + " ";
    }
    void click(double x, double y, const std::string& held = "") {
        const std::string move = "mousemove --window " + window + at(x, y);
        xdo(held.empty() ? move + "click 1"
                         : "keydown " + held + " " + move + "click 1 keyup " + held);
    }
    // The plug-in notices a changed selection at an idle call.
    static void let_idle_calls_pass() {
        std::this_thread::sleep_for(std::chrono::milliseconds(sanitizer_factor > 1 ? 1200 : 500));
    }
    void click_row(int row, const std::string& held = "") {
        click(layout.list.x + 100, layout.list.y + header_height + (row + 0.5) * row_height, held);
    }
    void click_control(const std::string& name) {
        const json& rect = controls.at(name)["rect"]; // top, left, bottom, right
        click(layout.panel.x + (rect[1].get<double>() + rect[3].get<double>()) / 2,
              layout.panel.y + (rect[0].get<double>() + rect[2].get<double>()) / 2);
    }
    // The window sees it as the desktop's request to close.
    void ask_to_close() {
        ASSERT_GT(process, 0);
        ::kill(process, SIGTERM);
    }
    // Waits for the program to exit.
    int exit_status() {
        int status = -1;
        pid_t ended = 0;
        if (!wait_until([&] { return (ended = ::waitpid(process, &status, WNOHANG)) != 0; }))
            return -1;
        process = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    bool is_running() { return ::waitpid(process, nullptr, WNOHANG) == 0; }

    std::optional<Server> server;
    TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    json scene;
    std::map<std::string, json> controls;
    WindowLayout layout;
    pid_t process = -1;
    std::string window;
};

TEST_F(Desktop, ArrangesByMouseAsTheCommandLineDoes) {
    open("title-wall.json");
    click_row(2);
    click_row(6, "shift");
    click_row(4, "ctrl");
    click_row(8, "ctrl");
    click_control("angle.min");
    key("ctrl+a");
    type("35");
    key("Tab"); // to the maximum: equal, so that nothing is random
    type("35");
    key("Return");
    click_control("orientation.towards-camera");
    click_control("camera");
    let_idle_calls_pass();
    key("Home Down Return"); // the second of them
    click_control("apply");
    ASSERT_TRUE(title_becomes("scene.json (edited)"));
    key("ctrl+z");
    ASSERT_TRUE(title_becomes("scene.json"));
    key("ctrl+shift+z");
    ASSERT_TRUE(title_becomes("scene.json (edited)"));
    key("ctrl+s");
    ASSERT_TRUE(title_becomes("scene.json"));
    expect_same_as("open\nselect #2 #3 #5 #6 #8\nset angle.min=35\nset angle.max=35\n"
                   "set orientation.towards-camera=on\nset camera=#1\nclick apply\nidle\n");
    key("ctrl+q");
    EXPECT_EQ(exit_status(), 0);
}

TEST_F(Desktop, ArrangesByKeysAlone) {
    open("cards.json");
    key("Home shift+Down shift+Down");
    key("Tab Tab"); // past Apply to the first field
    type("600");
    key("Tab Tab");
    type("700");
    key("Return");
    int stops = 0; // usable controls between the sizes and the orientation
    bool counts = false;
    const json state = json::parse(play("open\nselect #0 #1 #2\nidle\nstate\n"));
    for (const json& control : state["controls"]) {
        const json& name = control["name"];
        if (name == "orientation.none") break;
        const bool usable = control["enabled"] == true && name.is_string();
        if (counts && usable) ++stops;
        if (name == "size.z") counts = true;
    }
    for (int i = 0; i <= stops; ++i) key("Tab");
    key("Down Down Down Down"); // towards camera, random, XY, XZ
    key("shift+Tab");
    key("F10 Right Escape");                                  // opens the menus and chooses nothing
    for (int i = 0; i < 3 + stops + 4; ++i) key("shift+Tab"); // past the sizes back to Apply
    let_idle_calls_pass();
    key("space");
    ASSERT_TRUE(title_becomes("scene.json (edited)"));
    key("ctrl+s");
    ASSERT_TRUE(title_becomes("scene.json"));
    expect_same_as("open\nselect #0 #1 #2\nset size.x=600\nset size.z=700\n"
                   "set orientation.xz=on\nclick apply\nidle\n");
}

TEST_F(Desktop, AsksBeforeChangesAreLost) {
    open("cards.json");
    click(layout.view.x + 20, layout.view.y + 40); // nothing there
    xdo("mousemove --window " + window + at(layout.view.x + 6, layout.view.y + 40) + "mousedown 1" +
        " mousemove --window " + window + at(300, 200) + "mousemove --window " + window +
        at(layout.view.width - 6, layout.view.height - 6) + "mouseup 1");
    let_idle_calls_pass();
    click_control("apply");
    ASSERT_TRUE(title_becomes("scene.json (edited)"));
    ask_to_close();
    key("Escape");
    EXPECT_EQ(title(), "scene.json (edited)");
    EXPECT_TRUE(is_running());
    click(66 - 30, -12); // a menu is open when the window is closed again
    ask_to_close();
    let_idle_calls_pass();
    key("Return"); // Save
    EXPECT_EQ(exit_status(), 0);
    std::string cards;
    for (std::size_t i = 0; i < scene["layers"].size(); ++i)
        if (scene["layers"][i]["kind"] != "camera") cards += " #" + std::to_string(i);
    expect_same_as("open\nselect" + cards + "\nclick apply\nidle\n");
}

TEST_F(Desktop, OpensAnotherSceneAndKeepsThisOneWhenThatIsBroken) {
    open("cards.json");
    write_file(folder / "broken.json", "{}");
    fs::copy_file(fs::path(EXAMPLES) / "story.json", folder / "story.json");
    key("ctrl+o ctrl+a");
    type("broken.json");
    key("Return");
    let_idle_calls_pass();
    key("Return"); // OK to the error
    EXPECT_EQ(title(), "scene.json");
    key("ctrl+o ctrl+a");
    type((folder / "story.json").string());
    key("Return");
    ASSERT_TRUE(title_becomes("story.json"));
    let_idle_calls_pass();
    click_control("apply");
    ASSERT_TRUE(title_becomes("story.json (edited)"));
    key("ctrl+shift+s ctrl+a");
    type((folder / "scene").string()); // ".json" is added
    key("Return");
    let_idle_calls_pass();
    key("Return"); // Replace
    ASSERT_TRUE(title_becomes("scene.json"));
    fs::copy_file(folder / "story.json", folder / "before.json",
                  fs::copy_options::overwrite_existing);
    expect_same_as("open\nclick apply\nidle\n");
}

} // namespace
} // namespace minihost
