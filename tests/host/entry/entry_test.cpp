// The entry function: what it registers, and what it reports when the host refuses.

#include "tests/host/entry/PluginTest.h"

#include "minihost/suites/Module.h"

namespace {

using minihost::HostOptions;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

HostOptions failing(const std::string& call, std::int64_t number, std::int32_t code) {
    HostOptions options;
    options.failures = {{call, number, code}};
    return options;
}

// Loads; returns the error's text, or "".
std::string load_error(PluginHost& host) {
    try {
        host.session.load(PLUGIN);
        return "";
    } catch (const minihost::LoadError& e) {
        return e.what();
    }
}

TEST(Entry, RegistersItsHooksInOrder) {
    PluginHost host(scene_of({solid("S")}));
    EXPECT_THAT(host.new_calls(),
                ElementsAre("Register.RegisterDeathHook", "Command.GetUniqueCommand",
                            "Command.InsertMenuCommand", "Register.RegisterCommandHook",
                            "Register.RegisterCommandHook", "Register.RegisterUpdateMenuHook",
                            "Register.RegisterIdleHook",
                            "Workspace Panel.RegisterCreatePanelHook"));
    EXPECT_TRUE(host.session.host().panels.kinds().contains("DE_Tamborel v1.4"));
    ASSERT_EQ(host.session.host().menu().size(), 1u);
    EXPECT_EQ(host.session.host().menu()[0].menu, 8);
    EXPECT_EQ(host.session.host().menu()[0].text, "Tamborel");
}

TEST(Entry, ReportsWhatTheHostRefuses) {
    const std::string suite = "AEGP Register Suite.Register";
    const struct {
        std::string call;
        int number;
        const char* alert; // "" for none
        bool ends;         // with the call's code
    } cases[] = {
        {suite + "DeathHook", 1, "Could not register death hook.", true},
        {"AEGP Command Suite.GetUniqueCommand", 1, "Could not add menu item.", false},
        {"AEGP Command Suite.InsertMenuCommand", 1, "Could not register command hook.", true},
        {suite + "CommandHook", 1, "Could not register command hook.", true},
        {suite + "CommandHook", 2, "Could not register command hook.", true},
        {suite + "UpdateMenuHook", 1, "Could not register command hook.", true},
        {suite + "IdleHook", 1, "Could not register command hook.", true},
        {"AEGP Workspace Panel Suite.RegisterCreatePanelHook", 1,
         "Could not register command hook.", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.call + ":" + std::to_string(c.number));
        PluginHost host(scene_of({solid("S")}), failing(c.call, c.number, 77), false);
        const std::string error = load_error(host);
        EXPECT_EQ(!error.empty(), c.ends) << error;
        if (c.ends) {
            EXPECT_THAT(error, HasSubstr("77"));
        }
        EXPECT_THAT(host.session.host().alerts(), ElementsAre(c.alert));
    }
}

// The utility suite, which shows the message, is the fifth suite acquired: after those of
// registration, of the two optional ones and of the commands.
TEST(Entry, AMessageThatCannotBeShownIsNoError) {
    const struct {
        const char* call;
        const char* error; // in the load's message; empty when it goes on
    } cases[] = {{"AEGP Register Suite.RegisterIdleHook", "77"},
                 {"AEGP Command Suite.GetUniqueCommand", ""}};
    for (const auto& c : cases) {
        HostOptions options = failing(c.call, 1, 77);
        options.without = {"AEGP Utility Suite 3"};
        PluginHost host(scene_of({solid("S")}), options, false);
        const std::string error = load_error(host);
        EXPECT_EQ(error.empty(), !*c.error) << error;
        EXPECT_THAT(error, HasSubstr(c.error));
        EXPECT_EQ(error.find("516"), std::string::npos) << error;
    }
}

TEST(Entry, EndsWithTheCodeOfAMissingSuite) {
    // The register suite is acquired first, the command suite after the two optional ones.
    for (const int number : {1, 4}) {
        PluginHost host(scene_of({solid("S")}), failing("SPBasic.AcquireSuite", number, 9), false);
        EXPECT_THAT(load_error(host), HasSubstr("516")) << number;
        EXPECT_THAT(host.session.unload(), IsEmpty());
    }
}

TEST(Entry, WithoutACommandEverythingElseWorks) {
    PluginHost host(scene_of({solid("S")}), failing("AEGP Command Suite.GetUniqueCommand", 1, 5));
    for (const auto& hook : host.session.host().hooks().command)
        EXPECT_EQ(hook.command, AEGP_Command_ALL); // the hook that only passes commands on
    EXPECT_EQ(host.session.host().hooks().command.size(), 1u);
    EXPECT_EQ(host.session.host().update_menu(), 0);
    EXPECT_EQ(host.session.host().idle(), 0);
    EXPECT_THROW(host.play("menu"), minihost::ActionError);
}

TEST(Entry, LetsTheHostsOwnCommandsPass) {
    PluginHost host(scene_of({solid("S")}));
    EXPECT_EQ(host.session.host().choose(AEGP_Command_DUPLICATE), 0);
    EXPECT_THAT(host.layer_names(), ElementsAre("S 2", "S"));
}

TEST(Entry, CanBeLeftAndEnteredAgain) {
    for (int n = 0; n < 3; ++n) {
        PluginHost host(scene_of({solid("S")}));
        host.play("open\nclick apply");
        EXPECT_EQ(host.state()["undo"].size(), 1u);
        EXPECT_THAT(host.session.unload(), IsEmpty());
        EXPECT_THAT(host.messages, IsEmpty());
    }
}

} // namespace
