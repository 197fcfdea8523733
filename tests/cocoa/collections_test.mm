#include "Pool.h"

#include <Foundation/Foundation.h>

namespace {

class Collections : public PoolTest {
  protected:
    static std::string joined(NSArray* array) {
        std::string all;
        for (NSUInteger i = 0; i < [array count]; ++i) all += [[array objectAtIndex:i] UTF8String];
        return all;
    }
};

TEST_F(Collections, ArraysKeepOrderAndRetain) {
    NSMutableArray* array = [NSMutableArray array];
    EXPECT_EQ([array lastObject], nil);
    NSString* held = [NSString stringWithFormat:@"%d", 7];
    [array addObject:held];
    [array addObject:@"b"];
    [array insertObject:@"a" atIndex:0];
    [array addObject:held];
    EXPECT_EQ(joined(array), "a7b7");
    NSArray* copy = [[array copy] autorelease];
    EXPECT_EQ([array indexOfObjectIdenticalTo:held], 1u);
    EXPECT_EQ([array indexOfObjectIdenticalTo:@"x"], (NSUInteger)NSNotFound);
    [array removeObjectIdenticalTo:held]; // each of them
    [array removeObjectAtIndex:0];
    EXPECT_EQ(joined(array), "b");
    EXPECT_EQ(joined(copy), "a7b7");
}

TEST_F(Collections, ArraysRefuseWhatIsNotThere) {
    NSMutableArray* array = [NSMutableArray array];
    EXPECT_EQ(raised([&] { [array objectAtIndex:0]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array insertObject:@"b" atIndex:1]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array removeObjectAtIndex:0]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array addObject:nil]; }), "NSInvalidArgumentException");
}

TEST_F(Collections, DictionariesFindByEqualKeys) {
    NSMutableString* key = [[[NSMutableString alloc] initWithString:@"key"] autorelease];
    NSDictionary* dictionary =
        [NSDictionary dictionaryWithObjectsAndKeys:@"1", key, @"2", @"two", nil];
    [key setString:@"changed"]; // the dictionary has its own copy
    EXPECT_STREQ([[dictionary objectForKey:@"key"] UTF8String], "1");
    EXPECT_STREQ([[dictionary objectForKey:@"two"] UTF8String], "2");
    EXPECT_EQ([dictionary objectForKey:@"changed"], nil);
    EXPECT_EQ([dictionary objectForKey:nil], nil);
    EXPECT_EQ(raised([] { [NSDictionary dictionaryWithObjectsAndKeys:@"v", nil, nil]; }),
              "NSInvalidArgumentException");
}

TEST_F(Collections, AttributesAreTheSameForTheWholeString) {
    NSAttributedString* string = [[[NSAttributedString alloc]
        initWithString:@"abc"
            attributes:[NSDictionary dictionaryWithObjectsAndKeys:@"v", @"k", nil]] autorelease];
    NSRange range;
    NSDictionary* attributes = [string attributesAtIndex:2 effectiveRange:&range];
    EXPECT_STREQ([[attributes objectForKey:@"k"] UTF8String], "v");
    EXPECT_EQ(range.location, 0u);
    EXPECT_EQ(range.length, 3u);
    EXPECT_EQ(raised([&] { [string attributesAtIndex:3 effectiveRange:NULL]; }),
              "NSRangeException");
    EXPECT_EQ(raised([] { [[NSAttributedString alloc] initWithString:nil attributes:nil]; }),
              "NSInvalidArgumentException");
}

} // namespace
