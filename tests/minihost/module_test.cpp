// Modules: a file for each step of loading that can fail, and what a module holds at the end.

#include "minihost/suites/Module.h"

#include <cstdlib>
#include <gmock/gmock.h>

namespace minihost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Modules : public testing::Test {
  protected:
    ~Modules() override {
        ::unsetenv("TEST_PLUGIN_THROWS");
        ::unsetenv("TEST_PLUGIN_HOLDS");
    }
    static std::string path(const std::string& name) { return MODULES "/" + name + ".plugin"; }
    void expect_failure(LoadStage stage, const std::string& file, const std::string& cause) {
        try {
            const Module module(host, file);
            FAIL() << file;
        } catch (const LoadError& error) {
            EXPECT_EQ(error.stage(), stage);
            EXPECT_THAT(error.what(), HasSubstr(file));
            EXPECT_THAT(error.what(), HasSubstr(cause));
        }
        EXPECT_THAT(host.menu(), IsEmpty());
        EXPECT_THAT(host.hooks().death, IsEmpty());
        EXPECT_THAT(host.handles.open_collections(), IsEmpty());
    }

    std::vector<std::string> messages;
    Host host{Scene(), HostOptions(), [this](const std::string& line) { messages.push_back(line); },
              blind_panels()};
};

TEST_F(Modules, ThatCannotBeLoadedLeaveTheHostUnchanged) {
    expect_failure(LoadStage::Open, "/nowhere/x.plugin", "No such file");
    expect_failure(LoadStage::Open, __FILE__, "cannot be opened");
    expect_failure(LoadStage::Find, path("no_entry"), "PluginEntry");
    EXPECT_THAT(messages, IsEmpty());
    expect_failure(LoadStage::Enter, path("failing_entry"), "error 7");
    EXPECT_THAT(messages, ElementsAre(HasSubstr("entry function returned error 7")))
        << "its death hook released the suite";
    ::setenv("TEST_PLUGIN_THROWS", "1", 1);
    expect_failure(LoadStage::Enter, path("failing_entry"), "could not start");
    EXPECT_THAT(messages.back(), HasSubstr("threw an exception"));
    const Module good(host, path("arranger"));
    EXPECT_EQ(host.menu().size(), 1u) << "and another can still be loaded";
}

TEST_F(Modules, ReportWhatTheyStillHold) {
    {
        Module module(host, path("arranger"));
        EXPECT_THAT(module.unload(), IsEmpty());
        EXPECT_THAT(host.menu(), IsEmpty());
    }
    ::setenv("TEST_PLUGIN_HOLDS", "1", 1);
    Module module(host, path("arranger"));
    EXPECT_THAT(module.unload(),
                ElementsAre("AEGP Keyframe Suite 1, acquired 1 time more than released",
                            "one collection not disposed of", "one undo group left open"));
    EXPECT_EQ(host.document.open_groups(), 0);
    EXPECT_THAT(module.unload(), IsEmpty());
}

} // namespace
} // namespace minihost
