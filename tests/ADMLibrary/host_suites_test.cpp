#include "tests/ADMLibrary/support/FakeHost.h"

#include <algorithm>
#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

TEST(HostSuites, AreAcquiredInOrderAndGivenBackOnlyWhenHeld) {
    const std::string panels = "AEGP Workspace Panel Suite 1";
    const std::string app = "PF AE App Suite 6";
    struct Case {
        Calls missing, released;
    };
    const Case cases[] = {
        {{}, {"release " + panels, "release " + app}},
        {{kAEGPPanelSuite}, {"release " + app}},
        {{kPFAppSuite}, {"release " + panels}},
        {{kAEGPPanelSuite, kPFAppSuite}, {}},
    };
    for (const Case& c : cases) {
        FakeHost host;
        FakeHost::missing = c.missing;
        adm::acquireSuites();
        EXPECT_EQ(FakeHost::calls, (Calls{"acquire " + panels, "acquire " + app}));
        EXPECT_EQ(sAEGPPanelSuite != nullptr, !std::ranges::count(c.missing, kAEGPPanelSuite));
        EXPECT_EQ(sPFAppSuite != nullptr, !std::ranges::count(c.missing, kPFAppSuite));
        FakeHost::calls.clear();
        adm::releaseSuites();
        EXPECT_EQ(FakeHost::calls, c.released);
        EXPECT_EQ(sAEGPPanelSuite, nullptr);
        EXPECT_EQ(sPFAppSuite, nullptr);
    }
}

TEST(HostSuites, WithoutABasicSuiteThereAreNone) {
    FakeHost host;
    sSPBasic = nullptr;
    adm::acquireSuites();
    EXPECT_EQ(sAEGPPanelSuite, nullptr);
    adm::releaseSuites();
    EXPECT_TRUE(FakeHost::calls.empty());
}

TEST(HostSuites, AListStopsAtTheFirstThatIsMissing) {
    FakeHost host;
    FakeHost::missing = {"b"};
    const int stale = 0;
    const void* suites[3] = {&stale, &stale, &stale};
    _AcquireList list[] = {{"a", 1, &suites[0]}, {"b", 2, &suites[1]}, {"c", 3, &suites[2]}};

    EXPECT_EQ(PIUSuitesAcquire(nullptr, list, 3), 0x21416371);
    EXPECT_EQ(suites[2], nullptr);
    EXPECT_EQ(PIUSuitesAcquire(&FakeHost::basic, list, 3), 1);
    EXPECT_NE(suites[0], nullptr);
    EXPECT_EQ(suites[1], nullptr);
    EXPECT_EQ(suites[2], nullptr);
    PIUSuitesRelease(nullptr, list, 3);
    EXPECT_NE(suites[0], nullptr);
    PIUSuitesRelease(&FakeHost::basic, list, 3);
    EXPECT_EQ(suites[0], nullptr);
    EXPECT_EQ(FakeHost::calls, (Calls{"acquire a 1", "acquire b 2", "release a 1"}));
}

TEST(SuitesDeathTest, WhatIsNotProvidedSaysSoAndStops) {
    testing::FLAGS_gtest_death_test_style = "fast";
    struct Case {
        const char* name;
        void (*call)();
    };
    const Case cases[] = {
        {"ADMDialogSuite9::Modal",
         [] { sADMDialog->Modal(nullptr, "", 0, 3, nullptr, nullptr, 0); }},
        {"ADMDialogSuite9::Create with this style",
         [] { sADMDialog->Create(nullptr, "", 0, 12, nullptr, nullptr, 0); }},
        {"ADMDialogSuite9::Create with this style",
         [] { sADMDialog->Create(nullptr, "", 0, -1, nullptr, nullptr, 0); }},
        {"ADMDialogSuite9::DefaultDraw", [] { sADMDialog->DefaultDraw(nullptr, nullptr); }},
        {"ADMDialogSuite9::DefaultTrack", [] { sADMDialog->DefaultTrack(nullptr, nullptr); }},
        {"ADMItemSuite10::DefaultTrack", [] { sADMItem->DefaultTrack(nullptr, nullptr); }},
        {"ADMListSuite4::SetUserData", [] { sADMList->SetUserData(nullptr, nullptr); }},
        {"ADMEntrySuite6::Create", [] { sADMEntry->Create(nullptr); }},
        {"ADMListEntrySuite4::GetList", [] { sADMListEntry->GetList(nullptr); }},
        {"ADMHierarchyListSuite5::SetDrawProc",
         [] { sADMHierarchyList->SetDrawProc(nullptr, nullptr); }},
    };
    for (const Case& c : cases)
        EXPECT_EXIT(c.call(), testing::KilledBySignal(SIGABRT),
                    std::string(c.name) + " is not provided");
}

TEST(Suites, ANullHandleIsAnsweredWithNothing) {
    Rect r = {1, 2, 3, 4};
    Point p = {5, 6};
    sADMDialog->Show(nullptr, true);
    sADMDialog->SetText(nullptr, "text");
    sADMDialog->GetBoundsRect(nullptr, &r);
    sADMDialog->Destroy(nullptr);
    EXPECT_EQ(sADMDialog->GetItem(nullptr, 0), nullptr);
    EXPECT_EQ(sADMDialog->GetNextItem(nullptr, nullptr), nullptr);
    EXPECT_FALSE(sADMDialog->IsVisible(nullptr));
    EXPECT_EQ(sADMItem->Create(nullptr, 1, kADMSliderType, &r, nullptr, nullptr, 0), nullptr);
    sADMItem->SetFloatToTextProc(nullptr, nullptr);
    sADMItem->SetText(nullptr, "text");
    sADMItem->GetBestSize(nullptr, &p);
    EXPECT_EQ(sADMItem->GetFloatValue(nullptr), 0.0f);
    EXPECT_EQ(sADMItem->GetID(nullptr), 0);
    EXPECT_EQ(sADMItem->GetList(nullptr), nullptr);
    EXPECT_EQ(sADMList->InsertEntry(nullptr, 0), nullptr);
    EXPECT_EQ(sADMList->NumberOfEntries(nullptr), 0);
    sADMList->RemoveEntry(nullptr, 0);
    sADMEntry->SetText(nullptr, "text");
    EXPECT_FALSE(sADMNotifier->IsNotifierType(nullptr, kADMUserChangedNotifier));
    sADMDrawer->GetBoundsRect(nullptr, &r);
    EXPECT_EQ(sADMImage->BeginADMDrawer(nullptr), nullptr);
    sADMImage->Destroy(nullptr);
    EXPECT_EQ(r.right, 4);
    EXPECT_EQ(p.h, 6);
}
