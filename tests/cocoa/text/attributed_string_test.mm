// Runs of attributes over a string.
#include "Pool.h"

#include <Foundation/Foundation.h>

namespace {

class AttributedStrings : public PoolTest {
  protected:
    static NSDictionary* with(NSString* name, NSString* value) {
        return [NSDictionary dictionaryWithObjectsAndKeys:value, name, nil];
    }
    // The runs as "length:value of a" each.
    static std::string runs(NSAttributedString* string) {
        std::string all;
        for (NSUInteger at = 0; at < [string length];) {
            NSRange run;
            NSString* value = [string attribute:@"a" atIndex:at effectiveRange:&run];
            all += std::to_string(run.length) + ":" + (value ? [value UTF8String] : "-") + " ";
            at = run.location + run.length;
        }
        return all;
    }
};

TEST_F(AttributedStrings, KeepRunsWhileTheyAreChanged) {
    NSMutableAttributedString* string =
        [[[NSMutableAttributedString alloc] initWithString:@"0123456789"
                                                attributes:with(@"a", @"x")] autorelease];
    [string addAttribute:@"a" value:@"y" range:NSMakeRange(3, 4)];
    EXPECT_EQ(runs(string), "3:x 4:y 3:x ");
    [string setAttributes:nil range:NSMakeRange(0, 5)];
    EXPECT_EQ(runs(string), "5:- 2:y 3:x ");
    [string addAttribute:@"a" value:@"x" range:NSMakeRange(5, 2)];
    EXPECT_EQ(runs(string), "5:- 5:x ") << "equal runs become one";
    NSAttributedString* before = [[string copy] autorelease];
    [string appendAttributedString:string];
    EXPECT_EQ(runs(string), "5:- 5:x 5:- 5:x ");
    EXPECT_EQ(runs(before), "5:- 5:x ");
    EXPECT_FALSE([string isEqual:before]);
    EXPECT_TRUE([before isEqual:[[before mutableCopy] autorelease]]);
}

TEST_F(AttributedStrings, RefuseWhatIsBeyondTheirEnd) {
    NSMutableAttributedString* string =
        [[[NSMutableAttributedString alloc] initWithString:@"abc"] autorelease];
    EXPECT_EQ(raised([&] { [string attributesAtIndex:3 effectiveRange:NULL]; }),
              "NSRangeException");
    EXPECT_EQ(raised([&] { [string addAttribute:@"a" value:@"b" range:NSMakeRange(2, 2)]; }),
              "NSRangeException");
    EXPECT_EQ(raised([&] { [string setAttributes:nil range:NSMakeRange(1, NSUIntegerMax)]; }),
              "NSRangeException");
    EXPECT_EQ(raised([] { [[NSAttributedString alloc] initWithString:nil]; }),
              "NSInvalidArgumentException");
    EXPECT_EQ(runs(string), "3:- ");
}

} // namespace
