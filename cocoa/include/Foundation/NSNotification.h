// Notices broadcast by name to whoever asked for them.
#pragma once

#include <Foundation/NSObject.h>

@class NSDictionary;
struct NSObservers;

@interface NSNotification : NSObject <NSCopying> {
    NSString* _name;
    id _object;
    NSDictionary* _userInfo;
}
+ (id)notificationWithName:(NSString*)name object:(id)object;
+ (id)notificationWithName:(NSString*)name object:(id)object userInfo:(NSDictionary*)userInfo;
- (NSString*)name;
- (id)object;
- (NSDictionary*)userInfo;
@end

@interface NSNotificationCenter : NSObject {
    struct NSObservers* _observers;
}
+ (NSNotificationCenter*)defaultCenter;
// The selector takes the notification. A nil name or object stands for any. The observer is not
// retained: it removes itself before it is freed. Adding twice is notified twice.
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object;
- (void)removeObserver:(id)observer;
- (void)removeObserver:(id)observer name:(NSString*)name object:(id)object;
// Observers hear of it before the call returns, in the order in which they were added; one removed
// meanwhile hears nothing.
- (void)postNotification:(NSNotification*)notification;
- (void)postNotificationName:(NSString*)name object:(id)object;
- (void)postNotificationName:(NSString*)name object:(id)object userInfo:(NSDictionary*)userInfo;
@end
