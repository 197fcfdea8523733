// Ordered collections that retain what they hold. An index outside raises NSRangeException, a nil
// object NSInvalidArgumentException.
#pragma once

#include <Foundation/NSEnumerator.h>
#include <Foundation/NSRange.h>

@class NSString;
struct NSArrayItems;

@interface NSArray : NSObject <NSCopying, NSMutableCopying> {
    struct NSArrayItems* _items;
}
+ (id)array;
+ (id)arrayWithObject:(id)object;
+ (id)arrayWithObjects:(id)first, ... NS_REQUIRES_NIL_TERMINATION;
+ (id)arrayWithObjects:(const id*)objects count:(NSUInteger)count;
+ (id)arrayWithArray:(NSArray*)array;
- (id)init;
- (id)initWithObjects:(id)first, ... NS_REQUIRES_NIL_TERMINATION;
- (id)initWithObjects:(const id*)objects count:(NSUInteger)count;
- (id)initWithArray:(NSArray*)array;

- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
// nil of an empty array.
- (id)firstObject;
- (id)lastObject;
- (BOOL)containsObject:(id)object;
// By -isEqual:, or by identity; NSNotFound when it is not there.
- (NSUInteger)indexOfObject:(id)object;
- (NSUInteger)indexOfObjectIdenticalTo:(id)object;
- (BOOL)isEqualToArray:(NSArray*)array;
- (NSEnumerator*)objectEnumerator;
- (NSArray*)arrayByAddingObject:(id)object;
- (NSArray*)subarrayWithRange:(NSRange)range;
- (NSString*)componentsJoinedByString:(NSString*)separator;
- (void)makeObjectsPerformSelector:(SEL)selector;
- (void)makeObjectsPerformSelector:(SEL)selector withObject:(id)object;
// The selector compares two objects, as -[NSString compare:] does; the sort is stable.
- (NSArray*)sortedArrayUsingSelector:(SEL)comparator;
@end

@interface NSMutableArray : NSArray
+ (id)arrayWithCapacity:(NSUInteger)capacity;
- (id)initWithCapacity:(NSUInteger)capacity;
- (void)addObject:(id)object;
- (void)addObjectsFromArray:(NSArray*)array;
- (void)insertObject:(id)object atIndex:(NSUInteger)index;
- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(id)object;
- (void)exchangeObjectAtIndex:(NSUInteger)first withObjectAtIndex:(NSUInteger)second;
- (void)removeObjectAtIndex:(NSUInteger)index;
// All objects equal to it, or all that are it; nothing when there are none.
- (void)removeObject:(id)object;
- (void)removeObjectIdenticalTo:(id)object;
// Raises NSRangeException when the array is empty.
- (void)removeLastObject;
- (void)removeAllObjects;
- (void)sortUsingSelector:(SEL)comparator;
@end
