#include "ObjectMemory.h"

#include <Foundation/NSAutoreleasePool.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

@implementation NSObject

+ (id)alloc {
    return [self allocWithZone:NULL];
}

+ (id)allocWithZone:(NSZone*)__attribute__((unused))zone {
    return object_memory::allocate(self);
}

- (id)init {
    return self;
}

- (void)dealloc {
    object_memory::deallocate(self);
}

- (id)copy {
    return [(id<NSCopying>)self copyWithZone:NULL];
}

- (id)mutableCopy {
    return [(id<NSMutableCopying>)self mutableCopyWithZone:NULL];
}

- (id)retain {
    object_memory::add_reference(self);
    return self;
}

- (oneway void)release {
    if (!object_memory::drop_reference(self)) [self dealloc];
}

- (id)autorelease {
    [NSAutoreleasePool addObject:self];
    return self;
}

// Class objects are never freed.
+ (id)retain {
    return self;
}

+ (oneway void)release {
}

+ (id)autorelease {
    return self;
}

+ (Class)class {
    return self;
}

- (Class)class {
    return object_getClass(self);
}

- (BOOL)isKindOfClass:(Class)aClass {
    for (Class c = object_getClass(self); c; c = class_getSuperclass(c))
        if (c == aClass) return YES;
    return NO;
}

- (BOOL)respondsToSelector:(SEL)selector {
    return selector && class_respondsToSelector(object_getClass(self), selector);
}

- (id)performSelector:(SEL)selector withObject:(id)object {
    return ((id(*)(id, SEL, id))objc_msg_lookup(self, selector))(self, selector, object);
}

- (void)doesNotRecognizeSelector:(SEL)selector {
    Class of_class = object_getClass(self);
    [NSException raise:NSInvalidArgumentException
                format:@"%c[%s %s]: unrecognized selector sent to %s %p",
                       class_isMetaClass(of_class) ? '+' : '-', class_getName(of_class),
                       sel_getName(selector), class_isMetaClass(of_class) ? "class" : "instance",
                       (void*)self];
}

- (BOOL)isEqual:(id)object {
    return self == object;
}

- (NSUInteger)hash {
    return (NSUInteger)self >> 4;
}

- (NSString*)description {
    return [NSString stringWithFormat:@"<%s: %p>", class_getName([self class]), (void*)self];
}

@end
