// Ordered collections that retain what they hold. An index outside raises NSRangeException, a nil
// object NSInvalidArgumentException.
#pragma once

#include <Foundation/NSObject.h>

struct NSArrayItems;

@interface NSArray : NSObject <NSCopying> {
    struct NSArrayItems* _items;
}
+ (id)array;
+ (id)arrayWithArray:(NSArray*)array;
- (id)init;
- (id)initWithArray:(NSArray*)array;

- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
- (id)lastObject; // nil if the array is empty
// NSNotFound if it is not there.
- (NSUInteger)indexOfObjectIdenticalTo:(id)object;
@end

@interface NSMutableArray : NSArray
- (void)addObject:(id)object;
- (void)insertObject:(id)object atIndex:(NSUInteger)index;
- (void)removeObjectAtIndex:(NSUInteger)index;
// Every occurrence of it.
- (void)removeObjectIdenticalTo:(id)object;
@end
