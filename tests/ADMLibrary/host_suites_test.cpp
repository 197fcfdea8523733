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
    adm::acquireSuites(); // there is no host any more
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

TEST(Suites, ANullHandleIsAnsweredWithNothing) {
    Rect r = {1, 2, 3, 4};
    sADMDialog->Show(nullptr, true);
    sADMDialog->GetBoundsRect(nullptr, &r);
    EXPECT_EQ(sADMDialog->GetNextItem(nullptr, nullptr), nullptr);
    EXPECT_FALSE(sADMDialog->IsVisible(nullptr));
    EXPECT_EQ(sADMItem->Create(nullptr, 1, kADMSliderType, &r, nullptr, nullptr, 0), nullptr);
    sADMItem->SetFloatToTextProc(nullptr, nullptr);
    EXPECT_EQ(sADMItem->GetFloatValue(nullptr), 0.0f);
    EXPECT_EQ(sADMItem->GetList(nullptr), nullptr);
    EXPECT_EQ(sADMList->NumberOfEntries(nullptr), 0);
    sADMEntry->SetText(nullptr, "text");
    EXPECT_FALSE(sADMNotifier->IsNotifierType(nullptr, kADMUserChangedNotifier));
    sADMDrawer->GetBoundsRect(nullptr, &r);
    sADMImage->Destroy(nullptr);
    EXPECT_EQ(r.right, 4);
}
