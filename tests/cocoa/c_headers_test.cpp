// The C headers serve plain C++.
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#include <climits>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(CFString, ReadsAndWritesItsEncodings) {
    const struct {
        const char* bytes;
        CFStringEncoding from, to;
        const char* expected; // null: no such string
        CFIndex length;
    } cases[] = {
        {"plain", kCFStringEncodingMacRoman, kCFStringEncodingUTF8, "plain", 5},
        {"", kCFStringEncodingUTF8, kCFStringEncodingMacRoman, "", 0},
        {"\x8e\xdb\xf0", kCFStringEncodingMacRoman, kCFStringEncodingUTF8, "é€\xef\xa3\xbf", 3},
        {"é€Ω", kCFStringEncodingUTF8, kCFStringEncodingMacRoman, "\x8e\xdb\xbd", 3},
        {"\xe9", kCFStringEncodingISOLatin1, kCFStringEncodingMacRoman, "\x8e", 1},
        {"\xff", kCFStringEncodingUTF8, kCFStringEncodingUTF8, nullptr, 0},
        {"\xc0\x80", kCFStringEncodingUTF8, kCFStringEncodingUTF8, nullptr, 0},         // overlong
        {"\xed\xa0\x80", kCFStringEncodingUTF8, kCFStringEncodingUTF8, nullptr, 0},     // surrogate
        {"\xf4\x90\x80\x80", kCFStringEncodingUTF8, kCFStringEncodingUTF8, nullptr, 0}, // too great
        {"ab\xe2\x82", kCFStringEncodingUTF8, kCFStringEncodingUTF8, nullptr, 0},       // cut off
        {"\x80", kCFStringEncodingASCII, kCFStringEncodingUTF8, nullptr, 0},
        {"a", 0x0FFF, kCFStringEncodingUTF8, nullptr, 0}, // no such encoding
    };
    for (const auto& c : cases) {
        CFStringRef string = CFStringCreateWithCString(kCFAllocatorDefault, c.bytes, c.from);
        ASSERT_EQ(string != nullptr, c.expected != nullptr) << c.bytes;
        if (!string) continue;
        char buffer[64];
        EXPECT_EQ(CFStringGetLength(string), c.length);
        EXPECT_TRUE(CFStringGetCString(string, buffer, sizeof buffer, c.to));
        EXPECT_STREQ(buffer, c.expected);
        CFRelease(string);
    }
}

TEST(CFString, RefusesWhatDoesNotFitOrIsNotInTheEncoding) {
    CFStringRef string = CFStringCreateWithCString(nullptr, "caf\xc3\xa9", kCFStringEncodingUTF8);
    std::string buffer(8, 'x');
    EXPECT_FALSE(CFStringGetCString(string, buffer.data(), 5, kCFStringEncodingUTF8));
    EXPECT_TRUE(CFStringGetCString(string, buffer.data(), 6, kCFStringEncodingUTF8));
    EXPECT_EQ(buffer, std::string("caf\xc3\xa9\0xx", 8));
    EXPECT_TRUE(CFStringGetCString(string, buffer.data(), 5, kCFStringEncodingMacRoman));
    EXPECT_FALSE(CFStringGetCString(string, buffer.data(), 8, kCFStringEncodingASCII));
    EXPECT_FALSE(CFStringGetCString(string, buffer.data(), 0, kCFStringEncodingUTF8));
    EXPECT_EQ(CFGetRetainCount(CFRetain(string)), 2);
    CFRelease(string);
    CFRelease(string);
}

TEST(CFString, ConstantsAreOneObject) {
    EXPECT_EQ(CFSTR("same"), CFSTR("same"));
    EXPECT_TRUE(CFEqual(CFSTR("same"), CFSTR("same")));
    EXPECT_FALSE(CFEqual(CFSTR("same"), CFSTR("other")));
}

} // namespace
