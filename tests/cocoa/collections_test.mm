#include "Pool.h"

#include <Foundation/Foundation.h>

#include <climits>
#include <cmath>

namespace {

class Collections : public PoolTest {};

#define EXPECT_TEXT(string, text) EXPECT_STREQ([(string) UTF8String], text)

TEST_F(Collections, ArraysKeepOrderAndRetain) {
    NSMutableString* held = [NSMutableString stringWithString:@"b"];
    const NSUInteger before = [held retainCount];
    NSMutableArray* array = [NSMutableArray arrayWithObjects:@"a", held, @"c", @"b", nil];
    EXPECT_EQ([held retainCount], before + 1);
    EXPECT_EQ([array indexOfObject:@"b"], 1u);
    EXPECT_EQ([array indexOfObjectIdenticalTo:@"x"], (NSUInteger)NSNotFound);
    NSArray* copy = [[array copy] autorelease];
    [array removeObject:@"b"]; // all that are equal
    EXPECT_EQ([held retainCount], before + 1);
    EXPECT_TEXT([array componentsJoinedByString:@","], "a,c");
    [array insertObject:@"z" atIndex:0];
    [array exchangeObjectAtIndex:0 withObjectAtIndex:2];
    [array addObjectsFromArray:array];
    [array replaceObjectAtIndex:1 withObject:held];
    EXPECT_TEXT([array componentsJoinedByString:@","], "c,b,z,c,a,z");
    EXPECT_TEXT([[array sortedArrayUsingSelector:@selector(compare:)] componentsJoinedByString:@""],
                "abcczz");
    EXPECT_TEXT([copy componentsJoinedByString:@""], "abcb");
    EXPECT_TRUE([copy isEqual:([NSArray arrayWithObjects:@"a", @"b", @"c", @"b", nil])]);
    EXPECT_EQ([[NSArray array] lastObject], nil);
}

TEST_F(Collections, ArraysRefuseWhatIsNotThere) {
    NSMutableArray* array = [NSMutableArray arrayWithObject:@"a"];
    EXPECT_EQ(raised([&] { [array objectAtIndex:1]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array insertObject:@"b" atIndex:2]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array addObject:nil]; }), "NSInvalidArgumentException");
    [array removeLastObject];
    EXPECT_EQ(raised([&] { [array removeLastObject]; }), "NSRangeException");
    EXPECT_EQ(raised([&] { [array subarrayWithRange:NSMakeRange(0, 1)]; }), "NSRangeException");
}

TEST_F(Collections, AreWalkedThrough) {
    NSArray* array = [NSArray arrayWithObjects:@"a", @"b", @"c", nil];
    NSMutableString* seen = [NSMutableString string];
    NSEnumerator* enumerator = [array objectEnumerator];
    [seen appendString:[enumerator nextObject]];
    EXPECT_EQ([[enumerator allObjects] count], 2u);
    EXPECT_EQ([enumerator nextObject], nil);
    enumerator = [[NSDictionary dictionaryWithObject:@"v" forKey:@"k"] keyEnumerator];
    while (id key = [enumerator nextObject]) [seen appendString:key];
    EXPECT_TEXT(seen, "ak");
}

TEST_F(Collections, DictionariesFindByEqualKeys) {
    NSMutableString* key = [NSMutableString stringWithString:@"key"];
    NSMutableDictionary* dictionary =
        [NSMutableDictionary dictionaryWithObjectsAndKeys:@"1", key, @"2", @"two", nil];
    [key setString:@"changed"]; // the dictionary has its own copy
    EXPECT_TEXT([dictionary objectForKey:@"key"], "1");
    [dictionary setObject:@"3" forKey:@"key"];
    [dictionary setObject:@"4" forKey:[NSNumber numberWithInt:4]];
    EXPECT_TEXT([dictionary objectForKey:[NSNumber numberWithDouble:4]], "4");
    EXPECT_EQ([dictionary count], 3u);
    [dictionary removeObjectForKey:@"key"];
    [dictionary removeObjectForKey:@"never"];
    EXPECT_EQ([dictionary objectForKey:@"key"], nil);
    EXPECT_EQ([dictionary objectForKey:nil], nil);
    EXPECT_TEXT([dictionary objectForKey:@"two"], "2");
    EXPECT_TEXT([[dictionary allValues] componentsJoinedByString:@""], "24");
    EXPECT_EQ(raised([&] { [dictionary setObject:nil forKey:@"x"]; }),
              "NSInvalidArgumentException");
    EXPECT_EQ(raised([] { [NSDictionary dictionaryWithObjectsAndKeys:@"v", nil, nil]; }),
              "NSInvalidArgumentException");
    EXPECT_TRUE([dictionary isEqual:[NSDictionary dictionaryWithDictionary:dictionary]]);
}

TEST_F(Collections, NumbersConvert) {
    NSNumber* real = [NSNumber numberWithDouble:-2.75];
    EXPECT_EQ([real intValue], -2);
    EXPECT_EQ([real doubleValue], -2.75);
    EXPECT_EQ([[NSNumber numberWithDouble:1e300] longLongValue], LLONG_MAX);
    EXPECT_EQ([[NSNumber numberWithDouble:NAN] intValue], 0);
    EXPECT_EQ([[NSNumber numberWithUnsignedInteger:ULONG_MAX] doubleValue], 18446744073709551615.);
    EXPECT_TEXT([[NSNumber numberWithFloat:0.1f] stringValue], "0.1");
    EXPECT_TEXT([[NSNumber numberWithUnsignedInteger:ULONG_MAX] stringValue],
                "18446744073709551615");
    EXPECT_TRUE([[NSNumber numberWithInt:1] isEqual:[NSNumber numberWithBool:YES]]);
    EXPECT_EQ([[NSNumber numberWithLong:LONG_MAX] compare:[NSNumber numberWithLong:LONG_MAX - 1]],
              NSOrderedDescending);
}

TEST_F(Collections, ValuesHoldStructures) {
    const NSRect rect = NSMakeRect(1, 2, 3, 4);
    NSValue* value = [NSValue valueWithRect:rect];
    EXPECT_TRUE(NSEqualRects([value rectValue], rect));
    EXPECT_TRUE([value isEqual:[NSValue valueWithRect:rect]]);
    EXPECT_FALSE([value isEqual:[NSValue valueWithPoint:rect.origin]]);
    EXPECT_EQ(raised([&] { [value pointValue]; }), "NSInvalidArgumentException");
    EXPECT_EQ([[NSValue valueWithPointer:&rect] pointerValue], &rect);
}

} // namespace
