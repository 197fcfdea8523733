#include <Foundation/NSNotification.h>

#include <Foundation/NSDictionary.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <list>
#include <memory>
#include <vector>

namespace {

struct Observer {
    id observer;
    SEL selector;
    NSString* name; // a copy, or nil for any
    id object;      // not retained, or nil for any
    bool removed = false;

    Observer(id o, SEL s, NSString* n, id obj)
        : observer(o), selector(s), name([n copy]), object(obj) {}
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    ~Observer() { [name release]; }

    bool hears(NSString* posted, id sender) const {
        return !removed && (!name || [name isEqualToString:posted]) &&
               (!object || object == sender);
    }
};

} // namespace

struct NSObservers {
    std::vector<std::shared_ptr<Observer>> all;
};

@implementation NSNotification

+ (id)notificationWithName:(NSString*)name object:(id)object {
    return [self notificationWithName:name object:object userInfo:nil];
}

+ (id)notificationWithName:(NSString*)name object:(id)object userInfo:(NSDictionary*)userInfo {
    if (!name) [NSException raise:NSInvalidArgumentException format:@"a notification has a name"];
    NSNotification* made = [[self alloc] init];
    made->_name = [name copy];
    made->_object = [object retain];
    made->_userInfo = [userInfo retain];
    return [made autorelease];
}

- (void)dealloc {
    [_name release];
    [_object release];
    [_userInfo release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (NSString*)name {
    return _name;
}

- (id)object {
    return _object;
}

- (NSDictionary*)userInfo {
    return _userInfo;
}

@end

@implementation NSNotificationCenter

+ (NSNotificationCenter*)defaultCenter {
    static NSNotificationCenter* center = [[NSNotificationCenter alloc] init];
    return center;
}

- (id)init {
    self = [super init];
    if (self) _observers = new NSObservers;
    return self;
}

- (void)dealloc {
    delete _observers;
    [super dealloc];
}

- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object {
    if (!observer || !selector)
        [NSException raise:NSInvalidArgumentException format:@"an observer has a selector"];
    _observers->all.push_back(std::make_shared<Observer>(observer, selector, name, object));
}

- (void)removeObserver:(id)observer {
    [self removeObserver:observer name:nil object:nil];
}

- (void)removeObserver:(id)observer name:(NSString*)name object:(id)object {
    std::erase_if(_observers->all, [&](const std::shared_ptr<Observer>& entry) {
        if (entry->observer != observer) return false;
        if (name && !(entry->name && [entry->name isEqualToString:name])) return false;
        if (object && entry->object != object) return false;
        entry->removed = true; // for a posting that is under way
        return true;
    });
}

- (void)postNotification:(NSNotification*)notification {
    if (!notification)
        [NSException raise:NSInvalidArgumentException format:@"there is no notification to post"];
    const std::vector<std::shared_ptr<Observer>> present = _observers->all;
    for (const auto& entry : present)
        if (entry->hears([notification name], [notification object]))
            [entry->observer performSelector:entry->selector withObject:notification];
}

- (void)postNotificationName:(NSString*)name object:(id)object {
    [self postNotificationName:name object:object userInfo:nil];
}

- (void)postNotificationName:(NSString*)name object:(id)object userInfo:(NSDictionary*)userInfo {
    [self postNotification:[NSNotification notificationWithName:name
                                                         object:object
                                                       userInfo:userInfo]];
}

@end
