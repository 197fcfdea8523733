// Pools of objects to be released later. Pools nest, one stack for each thread; draining a pool
// drains those made inside it first. An object autoreleased without a pool is reported on standard
// error and stays alive.
#pragma once

#include <Foundation/NSObject.h>

struct NSPoolObjects;

@interface NSAutoreleasePool : NSObject {
    struct NSPoolObjects* _objects;
}
// To the innermost pool.
+ (void)addObject:(id)object;
// Releases the objects and the pool itself, as -release does.
- (void)drain;
@end
