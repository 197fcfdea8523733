#include <Foundation/NSDictionary.h>

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <unordered_map>

namespace {

struct KeyHash {
    size_t operator()(id key) const { return [key hash]; }
};
struct KeyEqual {
    bool operator()(id a, id b) const { return a == b || [a isEqual:b]; }
};

} // namespace

struct NSDictionaryEntries : std::unordered_map<id, id, KeyHash, KeyEqual> {};

@implementation NSDictionary

- (id)init {
    self = [super init];
    if (self) _entries = new NSDictionaryEntries;
    return self;
}

+ (id)dictionaryWithObjectsAndKeys:(id)firstObject, ... {
    NSDictionary* made = [[[self alloc] init] autorelease];
    va_list rest;
    va_start(rest, firstObject);
    for (id object = firstObject; object; object = va_arg(rest, id)) {
        id key = va_arg(rest, id);
        if (!key) [NSException raise:NSInvalidArgumentException format:@"nil key in a dictionary"];
        if ([made objectForKey:key]) continue;
        made->_entries->emplace([key copy], [object retain]);
    }
    va_end(rest);
    return made;
}

- (void)dealloc {
    for (const auto& [key, object] : *_entries) {
        [key release];
        [object release];
    }
    delete _entries;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (id)objectForKey:(id)key {
    const auto found = key ? _entries->find(key) : _entries->end();
    return found == _entries->end() ? nil : found->second;
}

@end
