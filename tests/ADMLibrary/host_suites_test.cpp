#include "tests/ADMLibrary/support/FakeHost.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

TEST(HostSuites, AreAcquiredInOrderAndGivenBackOnlyWhenHeld) {
    const std::string panels = "AEGP Workspace Panel Suite 1";
    const std::string app = "PF AE App Suite 6";
    const std::pair<Calls, Calls> missing_and_released[] = {
        {{}, {"release " + panels, "release " + app}},
        {{kAEGPPanelSuite}, {"release " + app}},
        {{kAEGPPanelSuite, kPFAppSuite}, {}},
    };
    for (const auto& [missing, released] : missing_and_released) {
        FakeHost host;
        FakeHost::missing = missing;
        adm::acquireSuites();
        EXPECT_EQ(FakeHost::calls, (Calls{"acquire " + panels, "acquire " + app}));
        EXPECT_EQ(sAEGPPanelSuite == nullptr, !missing.empty());
        FakeHost::calls.clear();
        adm::releaseSuites();
        EXPECT_EQ(FakeHost::calls, released);
        EXPECT_EQ(sAEGPPanelSuite, nullptr);
        EXPECT_EQ(sPFAppSuite, nullptr);
    }
    adm::acquireSuites(); // without a host
    EXPECT_EQ(sAEGPPanelSuite, nullptr);
}

TEST(SuitesDeathTest, WhatIsNotProvidedSaysSoAndStops) {
    const std::pair<const char*, void (*)()> cases[] = {
        {"ADMDialogSuite9::Create with this style",
         [] { sADMDialog->Create(nullptr, "", 0, 12, nullptr, nullptr, 0); }},
        {"ADMItemSuite10::DefaultTrack", [] { sADMItem->DefaultTrack(nullptr, nullptr); }},
        {"ADMListEntrySuite4::GetList", [] { sADMListEntry->GetList(nullptr); }},
    };
    for (const auto& [name, call] : cases)
        EXPECT_EXIT(call(), testing::KilledBySignal(SIGABRT),
                    std::string(name) + " is not provided");
}
