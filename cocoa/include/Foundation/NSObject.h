// The root class: making, counting references, asking about class and selectors.
// References are counted in a word in front of the object, so no class declares anything for them.
#pragma once

#include <Foundation/NSObjCRuntime.h>

@class NSString;

@protocol NSObject
- (BOOL)isEqual:(id)object;
- (NSUInteger)hash;
- (Class)superclass;
- (Class)class;
- (id)self;
- (id)performSelector:(SEL)selector;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (id)performSelector:(SEL)selector withObject:(id)first withObject:(id)second;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)isMemberOfClass:(Class)aClass;
- (BOOL)conformsToProtocol:(Protocol*)protocol;
- (BOOL)respondsToSelector:(SEL)selector;
- (id)retain;
- (oneway void)release;
- (id)autorelease;
- (NSUInteger)retainCount;
- (NSString*)description;
@end

struct _NSZone;
typedef struct _NSZone NSZone;

@protocol NSCopying
// The zone is not looked at; callers pass NULL.
- (id)copyWithZone:(NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(NSZone*)zone;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (void)initialize;
// A zeroed instance with one reference, which the caller owns.
+ (id)alloc;
+ (id)allocWithZone:(NSZone*)zone;
+ (id)new;
- (id)init;
- (void)dealloc;
- (id)copy;
- (id)mutableCopy;
+ (Class)class;
+ (Class)superclass;
+ (BOOL)isSubclassOfClass:(Class)aClass;
+ (BOOL)instancesRespondToSelector:(SEL)selector;
+ (BOOL)conformsToProtocol:(Protocol*)protocol;
+ (IMP)instanceMethodForSelector:(SEL)selector;
- (IMP)methodForSelector:(SEL)selector;
// Raises NSInvalidArgumentException; called for every message that has no method.
- (void)doesNotRecognizeSelector:(SEL)selector;
+ (NSString*)description;
@end

// Objects outside +alloc and -dealloc; the zone is not looked at. NULL when memory is out.
FOUNDATION_EXPORT id NSAllocateObject(Class aClass, NSUInteger extraBytes, NSZone* zone);
FOUNDATION_EXPORT void NSDeallocateObject(id object);
