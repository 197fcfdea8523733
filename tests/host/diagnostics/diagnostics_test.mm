#include "host/diagnostics/Debug.h"
#include "host/diagnostics/LogFile.h"

#include <Cocoa/Cocoa.h>
#include <cstdarg>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

// What the last alert showed, and how the next one is answered.
struct Alert {
    int shown = 0;
    std::string title, text;
    std::vector<std::string> buttons;
    NSInteger answer = 1;
} alert;

std::string text_of(NSString* string) {
    return string ? [string UTF8String] : "";
}

struct DebugTest : testing::Test {
    DebugTest() : _pool([[NSAutoreleasePool alloc] init]) { alert = {}; }
    ~DebugTest() override { [_pool drain]; }
    NSAutoreleasePool* _pool;
};

} // namespace

// Takes the place of the platform's alert in this program.
NSInteger NSRunAlertPanel(NSString* title, NSString* format, NSString* first, NSString* second,
                          NSString* third, ...) {
    va_list values;
    va_start(values, third);
    NSString* text = [[[NSString alloc] initWithFormat:format arguments:values] autorelease];
    va_end(values);
    ++alert.shown;
    alert.title = text_of(title);
    alert.text = text_of(text);
    alert.buttons.clear();
    for (NSString* button : {first, second, third})
        if (button) alert.buttons.push_back(text_of(button));
    return alert.answer;
}

TEST_F(DebugTest, TheLowBitsOfTheTypeChooseTheButtons) {
    struct Case {
        unsigned int type;
        std::vector<std::string> buttons;
    };
    const Case cases[] = {{0, {"OK"}},
                          {1, {"OK", "Cancel"}},
                          {2, {"Abort", "Retry", "Ignore"}},
                          {3, {"Yes", "No"}},
                          {4, {"Yes", "No", "Cancel"}},
                          {5, {"Retry", "Cancel"}},
                          {6, {"OK"}},
                          {15, {"OK"}},
                          {35, {"Yes", "No"}},
                          {0xfff2, {"Abort", "Retry", "Ignore"}}};
    for (const Case& c : cases) {
        debug::MessageBox("caption", "text", c.type);
        EXPECT_EQ(alert.buttons, c.buttons) << c.type;
        EXPECT_EQ(alert.title, "caption");
    }
}

TEST_F(DebugTest, TheAnswerIsTheButtonsNumber) {
    const NSInteger answers[] = {NSAlertDefaultReturn, NSAlertAlternateReturn, NSAlertOtherReturn,
                                 NSAlertErrorReturn};
    const int results[] = {1, 2, 3, -1};
    for (int i = 0; i < 4; ++i) {
        alert.answer = answers[i];
        EXPECT_EQ(debug::MessageBox("caption", "text", 2), results[i]);
        EXPECT_EQ(debug::QuestionMessageBox("caption", "text"), i == 0);
        EXPECT_EQ(alert.buttons.size(), 2u);
    }
}

TEST_F(DebugTest, NothingIsShownWithoutCaptionOrText) {
    EXPECT_EQ(debug::MessageBox(nullptr, "text", 0), -1);
    EXPECT_EQ(debug::InfoMessageBox("caption", nullptr), -1);
    EXPECT_EQ(debug::MessageBox(0u, static_cast<const char*>(nullptr), "%d", 4), -1);
    EXPECT_EQ(alert.shown, 0);
}

TEST_F(DebugTest, TextsAreShownAsTheyReadOrFormattedAndCut) {
    debug::ErrorMessageBox("100 %s", "50 %d %n");
    EXPECT_EQ(alert.text, "50 %d %n");
    EXPECT_EQ(alert.title, "100 %s");
    debug::MessageBox(0u, "caption", "%s is %d %%", "x", 7);
    EXPECT_EQ(alert.text, "x is 7 %");
    debug::MessageBox(0u, "caption", "%s", std::string(5000, 'a').c_str());
    EXPECT_EQ(alert.text, std::string(2047, 'a'));
}

TEST_F(DebugTest, AnErrorIsShownThenThrown) {
    try {
        debug::ThrowError("no layer");
        FAIL();
    } catch (int code) {
        EXPECT_EQ(code, -1);
    }
    EXPECT_EQ(alert.title, "Attention");
    EXPECT_EQ(alert.text, "no layer");
    EXPECT_EQ(alert.buttons, std::vector<std::string>{"OK"});
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
