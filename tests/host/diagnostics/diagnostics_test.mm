#include "host/diagnostics/Debug.h"
#include "host/diagnostics/LogFile.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

struct DebugTest : testing::Test {
    DebugTest() : _pool([[NSAutoreleasePool alloc] init]) { NSForgetShownAlerts(); }
    ~DebugTest() override { [_pool drain]; }
    static NSShownAlert last() { return NSShownAlerts().back(); }
    NSAutoreleasePool* _pool;
};

using Buttons = std::vector<std::string>;

} // namespace

TEST_F(DebugTest, TheLowBitsOfTheTypeChooseTheButtons) {
    const std::pair<unsigned int, Buttons> cases[] = {{0, {"OK"}},
                                                      {1, {"OK", "Cancel"}},
                                                      {2, {"Abort", "Retry", "Ignore"}},
                                                      {4, {"Yes", "No", "Cancel"}},
                                                      {5, {"Retry", "Cancel"}},
                                                      {6, {"OK"}},
                                                      {15, {"OK"}},
                                                      {35, {"Yes", "No"}}};
    for (const auto& [type, buttons] : cases) {
        for (unsigned int answer = 1; answer <= buttons.size(); ++answer) {
            NSSetNextAlertAnswer(answer);
            EXPECT_EQ(debug::MessageBox("caption", "text", type), static_cast<int>(answer));
            EXPECT_EQ(last().buttons, buttons) << type;
        }
    }
    NSSetNextAlertAnswer(2);
    EXPECT_FALSE(debug::QuestionMessageBox("caption", "text"));
    EXPECT_TRUE(debug::QuestionMessageBox("caption", "text"));
}

TEST_F(DebugTest, NothingIsShownWithoutCaptionOrText) {
    EXPECT_EQ(debug::MessageBox(nullptr, "text", 0), -1);
    EXPECT_EQ(debug::InfoMessageBox("caption", nullptr), -1);
    EXPECT_TRUE(NSShownAlerts().empty());
}

TEST_F(DebugTest, TextsAreShownAsTheyReadOrFormattedAndCut) {
    debug::ErrorMessageBox("100 %s", "50 %d %n");
    EXPECT_EQ(last().message, "50 %d %n");
    EXPECT_EQ(last().title, "100 %s");
    debug::MessageBox(0u, "caption", "%s is %d %%", "x", 7);
    EXPECT_EQ(last().message, "x is 7 %");
    debug::MessageBox(0u, "caption", "%s", std::string(5000, 'a').c_str());
    EXPECT_EQ(last().message, std::string(2047, 'a'));
    EXPECT_THROW(debug::ThrowError("no layer"), int);
    EXPECT_EQ(last().title, "Attention");
    EXPECT_EQ(last().buttons, Buttons{"OK"});
}

TEST_F(DebugTest, TraceOnlyFormats) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(debug::Trace("%d %s", 12, "layers"), 9);
    EXPECT_EQ(debug::Trace("%s", std::string(5000, 'a').c_str()), 5000);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(DebugTest, AStreamIsReadUpToItsPositionAndRewound) {
    std::ostringstream stream;
    EXPECT_STREQ(debug::MakeErrorString(stream, 0, nullptr), "");
    stream.clear();
    stream << "first and long";
    EXPECT_STREQ(debug::MakeErrorString(stream, 0, nullptr), "first and long");
    stream << "0second";
    EXPECT_STREQ(debug::MakeErrorString(stream, 1, "unused"), "second");
    stream << std::string(3000, 'a');
    EXPECT_EQ(debug::MakeErrorString(stream, 0, nullptr), std::string(1023, 'a'));
    stream << "end";
    EXPECT_STREQ(debug::MakeErrorString(stream, 0, nullptr), "end");
}

TEST(LogFile, StartsAnewOncePerProcessAndThenAppends) {
    EXPECT_STREQ(logfile_name, "g:\\Quillon.log");
    const std::string path = testing::TempDir() + "toolkit_log_" + std::to_string(getpid());
    std::ofstream(path) << "from an earlier process";
    const std::string nowhere = path + ".d/log";
    logfile_name = path.c_str();
    EXPECT_EQ(logmsg("first %d", 1), 0);
    EXPECT_EQ(logmsg(" second"), 0);
    logfile_name = nowhere.c_str();
    EXPECT_EQ(logmsg("dropped"), 0);
    std::ifstream file(path);
    std::string started, empty, messages;
    std::getline(file, started);
    std::getline(file, empty);
    std::getline(file, messages);
    EXPECT_TRUE(started.starts_with("Log file started ")) << started;
    EXPECT_EQ(started.size(), std::string("Log file started Thu Jan  1 00:00:00 1970").size());
    EXPECT_EQ(empty, "");
    EXPECT_EQ(messages, "first 1 second");
    std::filesystem::remove(path);
}
