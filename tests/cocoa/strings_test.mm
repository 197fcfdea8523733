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
    EXPECT_EQ([NSString stringWithUTF8String:"\xc3("], nil);
    EXPECT_TEXT("åh’", [[[NSString alloc] initWithCString:"\x8ch\xd5"] autorelease]);
    const char with_zero[] = "a\0b";
    NSString* three = [[[NSString alloc] initWithBytes:with_zero
                                                length:3
                                              encoding:NSUTF8StringEncoding] autorelease];
    EXPECT_EQ([three length], 3u);
    EXPECT_EQ([three characterAtIndex:2], 'b');
    EXPECT_EQ([[NSString alloc] initWithBytes:"x" length:1 encoding:77], nil);
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

TEST_F(Strings, AreSearchedAndSplit) {
    NSString* string = @"über-α-α";
    EXPECT_TRUE(NSEqualRanges([string rangeOfString:@"α"], NSMakeRange(5, 1)));
    EXPECT_TRUE(
        NSEqualRanges([string rangeOfString:@"α" options:NSBackwardsSearch], NSMakeRange(7, 1)));
    EXPECT_EQ([string rangeOfString:@"ber" options:NSAnchoredSearch].location, NSNotFound);
    EXPECT_TRUE(NSEqualRanges([string rangeOfString:@"x"], NSMakeRange(NSNotFound, 0)));
    EXPECT_EQ([string rangeOfString:@""].location, NSNotFound);
    EXPECT_TRUE([string hasPrefix:@"üb"]);
    EXPECT_FALSE([string hasSuffix:@"β"]);
    EXPECT_TEXT("über|α|α",
                [[string componentsSeparatedByString:@"-"] componentsJoinedByString:@"|"]);
    EXPECT_EQ([[@"-" componentsSeparatedByString:@"-"] count], 2u);
    EXPECT_EQ([[@"" componentsSeparatedByString:@"-"] count], 1u);
    EXPECT_TEXT("über------", [string stringByReplacingOccurrencesOfString:@"α" withString:@"--"]);
}

TEST_F(Strings, CompareByUnits) {
    EXPECT_EQ([@"a" compare:@"b"], NSOrderedAscending);
    EXPECT_EQ([@"ab" compare:@"a"], NSOrderedDescending);
    EXPECT_EQ([@"é" compare:[NSString stringWithUTF8String:"é"]], NSOrderedSame);
    // U+1F600 is D83D DE00 in UTF-16 and comes before U+FB01, whatever their UTF-8 bytes say.
    EXPECT_EQ([@"😀" compare:@"ﬁ"], NSOrderedAscending);
    EXPECT_TRUE([@"x" isEqual:[NSMutableString stringWithString:@"x"]]);
    EXPECT_EQ([@"x" hash], [[NSMutableString stringWithString:@"x"] hash]);
    EXPECT_FALSE([@"1" isEqual:[NSNumber numberWithInt:1]]);
    EXPECT_EQ(raised([] { [@"x" compare:nil]; }), "NSInvalidArgumentException");
}

TEST_F(Strings, ReadAsNumbers) {
    const struct {
        NSString* text;
        double real;
        int whole;
    } cases[] = {
        {@"12abc", 12, 12},      {@"  -3.5e1x", -35, -3},
        {@"abc", 0, 0},          {@"", 0, 0},
        {@".5", .5, 0},          {@"0x10", 0, 0},
        {@"inf", 0, 0},          {@"99999999999", 99999999999., INT_MAX},
        {@"1e", 1, 1},           {@"-99999999999", -99999999999., INT_MIN},
        {@"1e999", HUGE_VAL, 1}, {@"\t+7 8", 7, 7},
    };
    for (const auto& c : cases) {
        EXPECT_EQ([c.text doubleValue], c.real) << [c.text UTF8String];
        EXPECT_EQ([c.text floatValue], (float)c.real) << [c.text UTF8String];
        EXPECT_EQ([c.text intValue], c.whole) << [c.text UTF8String];
    }
    EXPECT_EQ([@"99999999999999999999" longLongValue], LLONG_MAX);
    EXPECT_TRUE([@" Yes" boolValue] && [@"-02" boolValue]);
    EXPECT_FALSE([@"no" boolValue] || [@"0" boolValue] || [@"" boolValue]);
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
    EXPECT_TEXT(
        "(0.5)",
        [NSString
            stringWithFormat:@"%@", [NSArray arrayWithObject:[NSNumber numberWithDouble:.5]]]);
    NSString* long_text = [@"" stringByAppendingFormat:@"%5000d", 1];
    EXPECT_EQ([long_text length], 5000u);
    EXPECT_TEXT("%k %", [NSString stringWithFormat:@"%k %"]);
}

TEST_F(Strings, GiveTheirBytes) {
    char buffer[8] = "xxxxxxx";
    EXPECT_TRUE([@"éa" getCString:buffer maxLength:3 encoding:NSMacOSRomanStringEncoding]);
    EXPECT_STREQ(buffer, "\x8e"
                         "a");
    EXPECT_FALSE([@"éa" getCString:buffer maxLength:3 encoding:NSUTF8StringEncoding]);
    EXPECT_FALSE([@"α" getCString:buffer maxLength:8 encoding:NSMacOSRomanStringEncoding]);
    EXPECT_EQ([@"α" cStringUsingEncoding:NSASCIIStringEncoding], nullptr);
    EXPECT_STREQ([@"é" cStringUsingEncoding:NSISOLatin1StringEncoding], "\xe9");
    EXPECT_EQ([@"é😀" lengthOfBytesUsingEncoding:NSUTF8StringEncoding], 6u);
}

TEST_F(Strings, ChangeWhenMutable) {
    NSMutableString* string = [NSMutableString stringWithUTF8String:"α"];
    [string appendString:string];
    [string appendFormat:@"%d", 12];
    [string insertString:@"<" atIndex:0];
    EXPECT_TEXT("<αα12", string);
    EXPECT_EQ([string length], 5u);
    NSString* copy = [[string copy] autorelease];
    [string deleteCharactersInRange:NSMakeRange(1, 3)];
    [string replaceCharactersInRange:NSMakeRange(1, 1) withString:@"é"];
    EXPECT_TEXT("<é", string);
    EXPECT_TEXT("<αα12", copy);
    EXPECT_FALSE([copy respondsToSelector:@selector(appendString:)]);
    EXPECT_EQ(raised([&] { [string insertString:@"x" atIndex:3]; }), "NSRangeException");
}

} // namespace
