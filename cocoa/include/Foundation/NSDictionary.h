// Objects by key. Keys are copied and compared with -isEqual:, objects are retained. A nil key
// raises NSInvalidArgumentException.
#pragma once

#include <Foundation/NSObject.h>

struct NSDictionaryEntries;

@interface NSDictionary : NSObject <NSCopying> {
    struct NSDictionaryEntries* _entries;
}
// Object, key, object, key ... nil.
+ (id)dictionaryWithObjectsAndKeys:(id)firstObject, ... NS_REQUIRES_NIL_TERMINATION;
- (id)objectForKey:(id)key; // nil if there is none
@end
