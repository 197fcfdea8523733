// What a random user finds is reduced to few steps and can be repeated.

#include "minihost/actions/ActionFile.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "tests/minihost/support/files.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

class RandomUsers : public testing::Test {
  protected:
    int run(const std::string& command) {
        const int status = std::system(
            ("cd '" + folder.string() + "' && " + command + " >printed 2>errors").c_str());
        printed = read_file(folder / "printed");
        return WEXITSTATUS(status);
    }
    int check(const std::string& id, const std::string& module) {
        return run(MINIHOST " check --level 2 --seed 7 --json report/report.json --only " + id +
                   " --plugin " CHECK_MODULES "/" + module + ".plugin");
    }

    TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    std::string printed;
};

TEST_F(RandomUsers, FindWhatTakesSeveralStepsAndReportFewThatRepeatIt) {
    struct Case {
        const char *id, *module;
        int lines;
    };
    fs::create_directory(folder / "report");
    for (const Case& it :
         {Case{"random.actions", "random_actions", 8}, {"random.events", "random_events", 5}}) {
        EXPECT_EQ(check(it.id, it.module), 1) << it.id;
        EXPECT_THAT(printed, AllOf(HasSubstr("crash "), HasSubstr("seed 7"), HasSubstr("Aborted")));
        const std::size_t start = printed.find("minihost run ");
        ASSERT_NE(start, std::string::npos) << printed;
        const std::string command = printed.substr(start, printed.find('\n', start) - start);
        const Words words = split_words(command, "");
        EXPECT_THAT(words[3], HasSubstr("report/random.")) << "beside the report";
        const std::string actions = read_file(folder / words[3]);
        const auto lines = static_cast<int>(parse_actions(actions, "actions").size());
        EXPECT_LE(lines, it.lines) << actions;
        // The status of a signal.
        EXPECT_EQ(run("PATH=$(dirname " MINIHOST "):$PATH " + command), 134) << actions;
        const std::string first = printed;
        check(it.id, it.module);
        EXPECT_EQ(read_file(folder / words[3]), actions) << "the same seed, the same way";
    }
}

} // namespace
} // namespace minihost
