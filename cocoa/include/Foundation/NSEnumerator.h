// Walking through collections with `while (id object = [enumerator nextObject])`. The compiler
// knows no `for (object in collection)` in Objective-C++.
#pragma once

#include <Foundation/NSObject.h>

@class NSArray;

// Walks an array that it retains; the enumerator of a dictionary walks the array of its keys.
@interface NSEnumerator : NSObject {
    NSArray* _array;
    NSUInteger _next;
}
// nil after the last object.
- (id)nextObject;
- (NSArray*)allObjects;
@end
