// The root class: allocation, reference counts, questions about class and selectors.
// References are counted in a word in front of the object, so no class declares anything for them.
#pragma once

#include <Foundation/NSObjCRuntime.h>

@class NSString;

@protocol NSObject
- (BOOL)isEqual:(id)object;
- (NSUInteger)hash;
- (Class)class;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)selector;
- (id)retain;
- (oneway void)release;
- (id)autorelease;
- (NSString*)description;
@end

struct _NSZone;
typedef struct _NSZone NSZone;

// Zones are ignored; callers pass NULL.
@protocol NSCopying
- (id)copyWithZone:(NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(NSZone*)zone;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
// A zeroed instance with one reference, which the caller owns; nil when memory is out.
+ (id)alloc;
+ (id)allocWithZone:(NSZone*)zone;
- (id)init;
- (void)dealloc;
- (id)copy;
- (id)mutableCopy;
+ (Class)class;
// Raises NSInvalidArgumentException; called for every message that has no method.
- (void)doesNotRecognizeSelector:(SEL)selector;
@end
