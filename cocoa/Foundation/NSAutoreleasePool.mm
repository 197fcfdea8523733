#include <Foundation/NSAutoreleasePool.h>

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <cstdio>
#include <vector>

struct NSPoolObjects {
    std::vector<id> waiting;
    NSAutoreleasePool* outer;
};

namespace {
thread_local NSAutoreleasePool* innermost = nil;
}

@implementation NSAutoreleasePool

- (id)init {
    self = [super init];
    if (!self) return nil;
    _objects = new NSPoolObjects{{}, innermost};
    innermost = self;
    return self;
}

+ (void)addObject:(id)object {
    if (innermost) {
        innermost->_objects->waiting.push_back(object);
        return;
    }
    fprintf(stderr, "*** Object %p of class %s autoreleased with no pool in place - just leaking\n",
            (void*)object, object_getClassName(object));
}

- (void)drain {
    [self release];
}

- (void)dealloc {
    while (innermost && innermost != self) [innermost drain];
    // Released objects may autorelease others, into this pool while it is the innermost one.
    while (!_objects->waiting.empty()) {
        std::vector<id> batch;
        batch.swap(_objects->waiting);
        for (id object : batch) [object release];
    }
    innermost = _objects->outer;
    delete _objects;
    [super dealloc];
}

- (id)retain {
    [NSException raise:NSInvalidArgumentException format:@"an autorelease pool cannot be retained"];
    return nil;
}

- (id)autorelease {
    [NSException raise:NSInvalidArgumentException
                format:@"an autorelease pool cannot be autoreleased"];
    return nil;
}

@end
