// Proves that each check can fail: for each there is a module that does what the check looks for,
// and only that check may report it.

#include "minihost/check/Checks.h"
#include "minihost/model/SceneReader.h"
#include "tests/minihost/support/files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <set>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;

// Returns the exit status; the output goes to "printed" in the folder.
int run_program(const TemporaryFolder& folder, const std::string& arguments) {
    const std::string command = "cd '" + folder.path.string() + "' && " MINIHOST " check " +
                                arguments + " >printed 2>&1 </dev/null";
    return WEXITSTATUS(std::system(command.c_str()));
}

std::string file_of(std::string_view id) {
    std::string name(id);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '.' || c == '-'; }, '_');
    return CHECK_MODULES "/" + name + ".plugin";
}

// The ids of the checks in a report with one of these outcomes.
std::set<std::string> ids_with(const json& report, const std::set<std::string>& outcomes) {
    std::set<std::string> ids;
    for (const json& it : report["checks"])
        if (outcomes.contains(it["outcome"])) ids.insert(it["id"]);
    return ids;
}

class BrokenModule : public testing::TestWithParam<const Check*> {};

TEST_P(BrokenModule, IsReportedByItsCheckAlone) {
    const std::string id = GetParam()->id;
    const TemporaryFolder folder;
    // Sanitizers are ten times as slow; only its own check is run then.
    const std::string only = sanitizer_factor > 1 ? " --only " + id : "";
    const int status =
        run_program(folder, "--level 1 --json report.json --plugin " + file_of(id) + only);
    const std::string printed = read_file(folder.path / "printed");
    ASSERT_EQ(status, 1) << printed;
    const json report = json::parse(read_file(folder.path / "report.json"));
    EXPECT_THAT(ids_with(report, {"fail", "crash"}), ElementsAre(id)) << printed;
}

std::vector<const Check*> all_checks() {
    std::vector<const Check*> all;
    for (const Check& it : checks()) all.push_back(&it);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Checks, BrokenModule, testing::ValuesIn(all_checks()),
                         [](const testing::TestParamInfo<const Check*>& it) {
                             return fs::path(file_of(it.param->id)).stem().string();
                         });

TEST(Checks, PassAModuleThatDoesNothingWrong) {
    const TemporaryFolder folder;
    const int status = run_program(folder, "--level 3 --seed 7 --json report.json --plugin " +
                                               file_of("sound-dialog"));
    const std::string printed = read_file(folder.path / "printed");
    EXPECT_EQ(status, 0) << printed;
    const json report = json::parse(read_file(folder.path / "report.json"));
    EXPECT_EQ(ids_with(report, {"pass"}).size(), checks().size()) << printed;
    EXPECT_EQ(report["level"], 3);
    EXPECT_EQ(report["seed"], 7);
    EXPECT_EQ(report["scene"], nullptr);
    for (const json& it : report["checks"]) EXPECT_GT(it["runs"], 0) << it["id"];
}

TEST(Checks, AreChosenByTheirIds) {
    const TemporaryFolder folder;
    const std::string sound = " --plugin " CHECK_MODULES "/sound.plugin";
    EXPECT_EQ(run_program(folder, "--list"), 0);
    const std::string list = read_file(folder.path / "printed");
    for (const Check& it : checks()) {
        EXPECT_THAT(list, HasSubstr(it.id));
        EXPECT_THAT(list, HasSubstr(it.sentence));
    }
    EXPECT_EQ(run_program(folder, "--only held.suites --only load.entry --json r.json" + sound), 0);
    EXPECT_THAT(ids_with(json::parse(read_file(folder.path / "r.json")), {"pass"}),
                ElementsAre("held.suites", "load.entry"));
    for (const char* bad :
         {"--only held.nothing", "--level 0", "--level 11", "nowhere.json", "--seed x"})
        EXPECT_EQ(run_program(folder, bad + sound), 2) << bad;
    EXPECT_EQ(run_program(folder, "--only load.entry --json /nowhere/r.json" + sound), 1);
    EXPECT_EQ(run_program(folder, "--plugin nowhere.plugin --json r.json"), 1);
    const json report = json::parse(read_file(folder.path / "r.json"));
    EXPECT_EQ(ids_with(report, {"skip"}).size() + 2, checks().size())
        << "those that need no loaded module";
}

} // namespace
} // namespace minihost
