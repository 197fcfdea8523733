// The C headers compile as plain C++.
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#include <gtest/gtest.h>
#include <string>

namespace {

TEST(CFString, IsMadeFromMacRomanAndWrittenAsMacRoman) {
    for (const std::string text : {"plain", "", "\x8e\xdb\xf0 \x80\xff"}) {
        CFStringRef string =
            CFStringCreateWithCString(nullptr, text.c_str(), kCFStringEncodingMacRoman);
        std::string buffer(text.size() + 3, 'x');
        EXPECT_TRUE(CFStringGetCString(string, buffer.data(), static_cast<CFIndex>(text.size()) + 1,
                                       kCFStringEncodingMacRoman));
        EXPECT_EQ(buffer, text + '\0' + "xx");
        EXPECT_FALSE(CFStringGetCString(string, buffer.data(), static_cast<CFIndex>(text.size()),
                                        kCFStringEncodingMacRoman));
        EXPECT_FALSE(CFStringGetCString(string, buffer.data(), 64, 0x0FFF));
        CFRelease(string);
    }
    EXPECT_EQ(CFStringCreateWithCString(nullptr, nullptr, kCFStringEncodingMacRoman), nullptr);
    EXPECT_EQ(CFStringCreateWithCString(nullptr, "a", 0x0FFF), nullptr);
    char none = 'x';
    EXPECT_FALSE(CFStringGetCString(nullptr, &none, 1, kCFStringEncodingMacRoman));
    EXPECT_EQ(none, 0);
}

} // namespace
