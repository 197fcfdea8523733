// What a host does with the hooks of a plug-in, and its interface colours.

#include "minihost/suites/Colors.h"
#include "tests/minihost/support/Suites.h"

#include <cmath>
#include <gmock/gmock.h>
#include <stdexcept>

namespace minihost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(Colors, TextIsReadableOnItsBackgroundInBothPalettes) {
    const auto distance = [](Palette palette, int a, int b) {
        const auto level = [&](int selector) {
            const PF_App_Color it =
                interface_color(palette, static_cast<PF_App_ColorType>(selector));
            return (it.red + it.green + it.blue) / 3.0 / 65535;
        };
        return std::abs(level(a) - level(b));
    };
    for (const Palette palette : {Palette::Dark, Palette::Light}) {
        EXPECT_GT(distance(palette, 2, 1000), 0.5);  // text on the panel
        EXPECT_GT(distance(palette, 9, 8), 0.5);     // title on a button
        EXPECT_GT(distance(palette, 16, 15), 0.5);   // and pressed
        EXPECT_GT(distance(palette, 30, 29), 0.15);  // and disabled
        EXPECT_GT(distance(palette, 23, 1000), 0.2); // disabled text
        EXPECT_LT(distance(palette, 23, 1000), distance(palette, 2, 1000));
        EXPECT_GT(distance(palette, 7, 8), 0.15); // a button's outline
    }
    EXPECT_NE(interface_color(Palette::Dark, 1000).red, interface_color(Palette::Light, 1000).red);
}

// Hooks that the test registers itself.

const SPBasicSuite* basic;
std::vector<std::string> calls;
A_Err result_of_hooks;
bool hooks_throw;

A_Err record(const std::string& name) {
    calls.push_back(name);
    if (hooks_throw) throw std::runtime_error("from a hook");
    return result_of_hooks;
}
template <typename Table>
const Table& acquire(const char* name, A_long version) {
    const void* table = nullptr;
    basic->AcquireSuite(name, version, &table);
    return *static_cast<const Table*>(table);
}
A_Err on_command(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command command, AEGP_HookPriority,
                 A_Boolean, A_Boolean* handled) {
    *handled = command == 5001;
    if (command == 5001) acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1).AEGP_ToggleVisibility("P");
    if (command == 5002) acquire<AEGP_CommandSuite1>(kAEGPCommandSuite, 1).AEGP_DoCommand(5002);
    return record("command");
}
A_Err on_panel(AEGP_GlobalRefcon, AEGP_CreatePanelRefcon, NSView*, AEGP_PanelH panel,
               AEGP_PanelFunctions1* functions, AEGP_PanelRefcon*) {
    functions->GetSnapSizes = [](AEGP_PanelRefcon, A_LPoint*, A_long* count) -> A_Err {
        *count = 0;
        return record("sizes");
    };
    acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1).AEGP_SetTitle(panel, "Title");
    return record("panel");
}
A_Err entry(SPBasicSuite* given, A_long, A_long, AEGP_PluginID id, AEGP_GlobalRefcon*) {
    basic = given;
    const auto& hooks = acquire<AEGP_RegisterSuite6>(kAEGPRegisterSuite, 6);
    const auto& commands = acquire<AEGP_CommandSuite1>(kAEGPCommandSuite, 1);
    AEGP_Command command = 0, other = 0;
    commands.AEGP_GetUniqueCommand(&command);
    commands.AEGP_GetUniqueCommand(&other);
    commands.AEGP_InsertMenuCommand(command, "Command", AEGP_Menu_FLOATERS, -1);
    hooks.AEGP_RegisterCommandHook(id, 1, AEGP_Command_ALL, on_command, nullptr);
    hooks.AEGP_RegisterIdleHook(
        id, [](AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long*) { return record("idle"); }, nullptr);
    hooks.AEGP_RegisterDeathHook(
        id, [](AEGP_GlobalRefcon, AEGP_DeathRefcon) { return record("death"); }, nullptr);
    acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1)
        .AEGP_RegisterCreatePanelHook(id, "P", on_panel, nullptr, 1);
    return 0;
}

class HookedHost : public Suites {
  protected:
    HookedHost() {
        calls.clear();
        result_of_hooks = 0;
        hooks_throw = false;
        EXPECT_EQ(host.call_entry(entry, basic_suite), 0);
    }
};

TEST_F(HookedHost, MakesAPanelOnceAndThenTogglesIt) {
    EXPECT_EQ(host.panels.view(), nullptr);
    EXPECT_EQ(host.choose(5001), 0);
    EXPECT_THAT(calls, ElementsAre("panel", "sizes", "command"));
    ASSERT_NE(host.panels.view(), nullptr);
    EXPECT_TRUE(host.panels.view()->is_visible());
    EXPECT_EQ(host.panels.view()->title(), "Title");
    host.choose(5001);
    EXPECT_FALSE(host.panels.view()->is_visible());
    EXPECT_TRUE(host.close_panels());
    EXPECT_FALSE(host.close_panels());
    calls.clear();
    host.choose(5001);
    EXPECT_THAT(calls, ElementsAre("panel", "sizes", "command")) << "a new panel";
}

TEST_F(HookedHost, SurvivesHooksThatFailThrowOrNeverEnd) {
    EXPECT_EQ(host.choose(5002), bad_argument_error) << "not in a menu, and no hook handled it";
    EXPECT_EQ(calls.size(), 16u) << "a command that goes on choosing itself is stopped";
    EXPECT_EQ(host.idle(), 0);
    result_of_hooks = 21;
    EXPECT_EQ(host.idle(), 21);
    EXPECT_THAT(messages.back(), HasSubstr("idle hook returned error 21"));
    host.choose(5001);
    EXPECT_EQ(host.panels.view(), nullptr) << "its hook failed";
    hooks_throw = true;
    EXPECT_EQ(host.idle(), host_error);
    EXPECT_THAT(messages.back(), HasSubstr("threw an exception"));
    EXPECT_EQ(host.choose(AEGP_Command_DUPLICATE), host_error);
    hooks_throw = false;
    EXPECT_THAT(host.shut_down(),
                UnorderedElementsAre(HasSubstr("AEGP Register Suite 6, acquired 1 time"),
                                     HasSubstr("AEGP Command Suite 1"),
                                     HasSubstr("AEGP Workspace Panel Suite 1")));
    calls.clear();
    host.idle();
    host.choose(5001);
    EXPECT_THAT(calls, IsEmpty()) << "the plug-in is not called after its death hook";
}

} // namespace
} // namespace minihost
