#include "ObjectStore.h"

#include <Foundation/NSAutoreleasePool.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

id NSAllocateObject(Class aClass, NSUInteger extraBytes, NSZone*) {
    return object_store::make(aClass, extraBytes);
}

void NSDeallocateObject(id object) {
    if (object) object_store::dispose(object);
}

@implementation NSObject

+ (void)initialize {
}

+ (id)alloc {
    return [self allocWithZone:NULL];
}

+ (id)allocWithZone:(NSZone*)zone {
    return NSAllocateObject(self, 0, zone);
}

+ (id)new {
    return [[self alloc] init];
}

- (id)init {
    return self;
}

- (void)dealloc {
    NSDeallocateObject(self);
}

- (id)copy {
    return [(id<NSCopying>)self copyWithZone:NULL];
}

- (id)mutableCopy {
    return [(id<NSMutableCopying>)self mutableCopyWithZone:NULL];
}

- (id)retain {
    object_store::add_reference(self);
    return self;
}

- (oneway void)release {
    if (!object_store::drop_reference(self)) [self dealloc];
}

- (id)autorelease {
    [NSAutoreleasePool addObject:self];
    return self;
}

- (NSUInteger)retainCount {
    return object_store::reference_count(self);
}

// Class objects are there for good.
+ (id)retain {
    return self;
}

+ (oneway void)release {
}

+ (id)autorelease {
    return self;
}

+ (NSUInteger)retainCount {
    return UINT32_MAX;
}

+ (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return self;
}

+ (Class)class {
    return self;
}

+ (Class)superclass {
    return class_getSuperclass(self);
}

- (Class)class {
    return object_getClass(self);
}

- (Class)superclass {
    return class_getSuperclass(object_getClass(self));
}

- (id)self {
    return self;
}

- (BOOL)isKindOfClass:(Class)aClass {
    for (Class c = object_getClass(self); c; c = class_getSuperclass(c))
        if (c == aClass) return YES;
    return NO;
}

- (BOOL)isMemberOfClass:(Class)aClass {
    return object_getClass(self) == aClass;
}

+ (BOOL)isSubclassOfClass:(Class)aClass {
    for (Class c = self; c; c = class_getSuperclass(c))
        if (c == aClass) return YES;
    return NO;
}

+ (BOOL)conformsToProtocol:(Protocol*)protocol {
    for (Class c = self; c; c = class_getSuperclass(c))
        if (class_conformsToProtocol(c, protocol)) return YES;
    return NO;
}

- (BOOL)conformsToProtocol:(Protocol*)protocol {
    return [[self class] conformsToProtocol:protocol];
}

- (BOOL)respondsToSelector:(SEL)selector {
    return selector && class_respondsToSelector(object_getClass(self), selector);
}

+ (BOOL)instancesRespondToSelector:(SEL)selector {
    return selector && class_respondsToSelector(self, selector);
}

+ (IMP)instanceMethodForSelector:(SEL)selector {
    return class_getMethodImplementation(self, selector);
}

- (IMP)methodForSelector:(SEL)selector {
    return class_getMethodImplementation(object_getClass(self), selector);
}

- (id)performSelector:(SEL)selector {
    return ((id(*)(id, SEL))objc_msg_lookup(self, selector))(self, selector);
}

- (id)performSelector:(SEL)selector withObject:(id)object {
    return ((id(*)(id, SEL, id))objc_msg_lookup(self, selector))(self, selector, object);
}

- (id)performSelector:(SEL)selector withObject:(id)first withObject:(id)second {
    IMP method = objc_msg_lookup(self, selector);
    return ((id(*)(id, SEL, id, id))method)(self, selector, first, second);
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

+ (NSString*)description {
    return NSStringFromClass(self);
}

@end
