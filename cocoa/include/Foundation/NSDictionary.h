// Objects by key. Keys are copied and compared with -isEqual:, objects are retained. A nil key or
// object raises NSInvalidArgumentException. The order of keys is not said, but it is the same for
// dictionaries made alike.
#pragma once

#include <Foundation/NSEnumerator.h>

@class NSArray;
struct NSDictionaryEntries;

@interface NSDictionary : NSObject <NSCopying, NSMutableCopying> {
    struct NSDictionaryEntries* _entries;
}
+ (id)dictionary;
+ (id)dictionaryWithObject:(id)object forKey:(id)key;
// Object, key, object, key ... nil. A nil in the place of a key raises.
+ (id)dictionaryWithObjectsAndKeys:(id)firstObject, ... NS_REQUIRES_NIL_TERMINATION;
+ (id)dictionaryWithObjects:(NSArray*)objects forKeys:(NSArray*)keys;
+ (id)dictionaryWithDictionary:(NSDictionary*)dictionary;
- (id)init;
- (id)initWithObjectsAndKeys:(id)firstObject, ... NS_REQUIRES_NIL_TERMINATION;
- (id)initWithObjects:(const id*)objects forKeys:(const id*)keys count:(NSUInteger)count;
- (id)initWithDictionary:(NSDictionary*)dictionary;

- (NSUInteger)count;
// nil when there is none.
- (id)objectForKey:(id)key;
- (NSArray*)allKeys;
- (NSArray*)allValues;
- (NSEnumerator*)keyEnumerator;
- (NSEnumerator*)objectEnumerator;
- (BOOL)isEqualToDictionary:(NSDictionary*)dictionary;
@end

@interface NSMutableDictionary : NSDictionary
+ (id)dictionaryWithCapacity:(NSUInteger)capacity;
- (id)initWithCapacity:(NSUInteger)capacity;
- (void)setObject:(id)object forKey:(id)key;
- (void)removeObjectForKey:(id)key;
- (void)removeAllObjects;
- (void)addEntriesFromDictionary:(NSDictionary*)dictionary;
@end
