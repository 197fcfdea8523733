#include "Pool.h"

#include <Foundation/Foundation.h>

#include <climits>
#include <cmath>

namespace {

class Strings : public PoolTest {};

// Variadic, for the commas of a message come between its brackets.
#define EXPECT_TEXT(text, ...) EXPECT_STREQ(text, [(__VA_ARGS__) UTF8String])

TEST_F(Strings, AreMadeFromBytes) {
    EXPECT_TEXT("naïve", [NSString stringWithUTF8String:"naïve"]);
    EXPECT_TEXT("åh’", [[[NSString alloc] initWithCString:"\x8ch\xd5"] autorelease]);
    for (const char* invalid :
         {"\xc3(", "\xff", "\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "ab\xe2\x82"})
        EXPECT_EQ([NSString stringWithUTF8String:invalid], nil) << invalid;
    EXPECT_EQ(raised([] { [NSString stringWithUTF8String:nullptr]; }),
              "NSInvalidArgumentException");
}

TEST_F(Strings, CountAndCutInUTF16Units) {
    NSString* string = [NSString stringWithUTF8String:"a€😀z"];
    EXPECT_EQ([string length], 5u);
    const unichar units[] = {'a', 0x20AC, 0xD83D, 0xDE00, 'z'};
    for (NSUInteger i = 0; i < 5; ++i) EXPECT_EQ([string characterAtIndex:i], units[i]) << i;
    EXPECT_TEXT("€😀", [string substringWithRange:NSMakeRange(1, 3)]);
    EXPECT_TEXT("z", [string substringFromIndex:4]);
    EXPECT_TEXT("", [string substringToIndex:0]);
    EXPECT_TEXT("a€\xef\xbf\xbd", [string substringToIndex:3]); // half of a pair
    EXPECT_TRUE([[NSString stringWithCharacters:units length:5] isEqualToString:string]);
    EXPECT_EQ(raised([&] { [string characterAtIndex:5]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [string substringWithRange:NSMakeRange(4, 2)]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [string substringWithRange:NSMakeRange(2, NSNotFound)]; }),
              "NSRangeException");
    EXPECT_EQ([@"€" length], 1u); // literals too
}

TEST_F(Strings, AreSplitJoinedAndCompared) {
    NSArray* parts = [@"über-α-" componentsSeparatedByString:@"-"];
    ASSERT_EQ([parts count], 3u);
    EXPECT_TEXT("α", [parts objectAtIndex:1]);
    EXPECT_TEXT("", [parts objectAtIndex:2]);
    EXPECT_EQ([[@"" componentsSeparatedByString:@"-"] count], 1u);
    EXPECT_TEXT("über", [@"ü" stringByAppendingString:@"ber"]);
    NSMutableString* x = [[[NSMutableString alloc] initWithString:@"x"] autorelease];
    EXPECT_TRUE([@"x" isEqual:x]);
    EXPECT_EQ([@"x" hash], [x hash]);
    EXPECT_FALSE([@"x" isEqual:parts]);
}

TEST_F(Strings, ReadAsNumbers) {
    const struct {
        NSString* text;
        double number;
    } cases[] = {
        {@"12abc", 12},       {@"  -3.5e1x", -35}, {@"abc", 0}, {@"", 0},
        {@".5", .5},          {@"0x10", 0},        {@"inf", 0}, {@"1e", 1},
        {@"1e999", HUGE_VAL}, {@"\t+7 8", 7},
    };
    for (const auto& c : cases) EXPECT_EQ([c.text doubleValue], c.number) << [c.text UTF8String];
}

TEST_F(Strings, AreFormatted) {
    EXPECT_TEXT("this and (null)", [NSString stringWithFormat:@"%@ and %@", @"this", nil]);
    EXPECT_TEXT(
        "42   |003.1|   7|ab|100%",
        [NSString stringWithFormat:@"%-5d|%05.1f|%*d|%.2s|100%%", 42, 3.14159, 4, 7, "abc"]);
    EXPECT_TEXT("-9223372036854775808 18446744073709551615 -1 1 ff €",
                [NSString stringWithFormat:@"%ld %lu %lld %hhd %x %C", LONG_MIN, ULONG_MAX, -1LL,
                                           257, 255u, 0x20AC]);
    EXPECT_TEXT("é", [NSString stringWithFormat:@"%s", "\x8e"]); // bytes are Mac Roman
    EXPECT_EQ(([[NSString stringWithFormat:@"%5000d", 1] length]), 5000u);
    EXPECT_TEXT("%k %", [NSString stringWithFormat:@"%k %"]);
}

TEST_F(Strings, ChangeWhenMutable) {
    NSMutableString* string = [[[NSMutableString alloc] initWithString:@"αα12"] autorelease];
    NSString* copy = [[string copy] autorelease];
    [string replaceCharactersInRange:NSMakeRange(1, 3) withString:@"é"];
    EXPECT_TEXT("αé", string);
    EXPECT_EQ([string length], 2u);
    EXPECT_TEXT("αα12", copy);
    EXPECT_FALSE([copy respondsToSelector:@selector(setString:)]);
    EXPECT_EQ(raised([&] { [string replaceCharactersInRange:NSMakeRange(3, 0) withString:@"x"]; }),
              "NSRangeException");
}

} // namespace
