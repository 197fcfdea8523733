#include <Foundation/NSDictionary.h>

#include <Foundation/NSArray.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <unordered_map>
#include <vector>

namespace {

struct KeyHash {
    size_t operator()(id key) const { return [key hash]; }
};
struct KeyEqual {
    bool operator()(id a, id b) const { return a == b || [a isEqual:b]; }
};

} // namespace

// Entries in the order in which their keys came, and where each key's entry is.
struct NSDictionaryEntries {
    std::vector<id> keys, objects;
    std::unordered_map<id, size_t, KeyHash, KeyEqual> places;

    void set(id key, id object) {
        if (!key || !object)
            [NSException raise:NSInvalidArgumentException format:@"nil in a dictionary"];
        [object retain];
        const auto found = places.find(key);
        if (found != places.end()) {
            id old = objects[found->second];
            objects[found->second] = object;
            [old release];
            return;
        }
        id own_key = [key copy];
        places.emplace(own_key, keys.size());
        keys.push_back(own_key);
        objects.push_back(object);
    }

    void remove(id key) {
        const auto found = key ? places.find(key) : places.end();
        if (found == places.end()) return;
        const size_t at = found->second;
        id old_key = keys[at], old_object = objects[at];
        places.erase(found);
        keys.erase(keys.begin() + at);
        objects.erase(objects.begin() + at);
        for (auto& [other, place] : places) place -= place > at;
        [old_key release];
        [old_object release];
    }

    void clear() {
        std::vector<id> old_keys, old_objects;
        places.clear();
        old_keys.swap(keys);
        old_objects.swap(objects);
        for (id key : old_keys) [key release];
        for (id object : old_objects) [object release];
    }
};

@implementation NSDictionary

+ (id)dictionary {
    return [[[self alloc] init] autorelease];
}

+ (id)dictionaryWithObject:(id)object forKey:(id)key {
    return [[[self alloc] initWithObjects:&object forKeys:&key count:1] autorelease];
}

// Object, key, object, key ... to the nil in the place of an object.
static NSDictionary* fill(NSDictionary* made, id first, va_list rest) {
    for (id object = first; object; object = va_arg(rest, id))
        made->_entries->set(va_arg(rest, id), object);
    return made;
}

+ (id)dictionaryWithObjectsAndKeys:(id)firstObject, ... {
    va_list rest;
    va_start(rest, firstObject);
    NSDictionary* made = fill([[[self alloc] init] autorelease], firstObject, rest);
    va_end(rest);
    return made;
}

+ (id)dictionaryWithObjects:(NSArray*)objects forKeys:(NSArray*)keys {
    if ([objects count] != [keys count])
        [NSException raise:NSInvalidArgumentException format:@"as many keys as objects"];
    NSDictionary* made = [[[self alloc] init] autorelease];
    for (NSUInteger i = 0; i < [keys count]; ++i)
        made->_entries->set([keys objectAtIndex:i], [objects objectAtIndex:i]);
    return made;
}

+ (id)dictionaryWithDictionary:(NSDictionary*)dictionary {
    return [[[self alloc] initWithDictionary:dictionary] autorelease];
}

- (id)init {
    self = [super init];
    if (self) _entries = new NSDictionaryEntries;
    return self;
}

- (id)initWithObjectsAndKeys:(id)firstObject, ... {
    self = [self init];
    va_list rest;
    va_start(rest, firstObject);
    fill(self, firstObject, rest);
    va_end(rest);
    return self;
}

- (id)initWithObjects:(const id*)objects forKeys:(const id*)keys count:(NSUInteger)count {
    self = [self init];
    for (NSUInteger i = 0; i < count; ++i) _entries->set(keys[i], objects[i]);
    return self;
}

- (id)initWithDictionary:(NSDictionary*)dictionary {
    self = [self init];
    if (!dictionary) return self;
    const NSDictionaryEntries& other = *dictionary->_entries;
    for (size_t i = 0; i < other.keys.size(); ++i) _entries->set(other.keys[i], other.objects[i]);
    return self;
}

- (void)dealloc {
    _entries->clear();
    delete _entries;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (id)mutableCopyWithZone:(NSZone*)zone {
    return [[NSMutableDictionary allocWithZone:zone] initWithDictionary:self];
}

- (NSUInteger)count {
    return _entries->keys.size();
}

- (id)objectForKey:(id)key {
    const auto found = key ? _entries->places.find(key) : _entries->places.end();
    return found == _entries->places.end() ? nil : _entries->objects[found->second];
}

- (NSArray*)allKeys {
    return [NSArray arrayWithObjects:_entries->keys.data() count:_entries->keys.size()];
}

- (NSArray*)allValues {
    return [NSArray arrayWithObjects:_entries->objects.data() count:_entries->objects.size()];
}

- (NSEnumerator*)keyEnumerator {
    return [[self allKeys] objectEnumerator];
}

- (NSEnumerator*)objectEnumerator {
    return [[self allValues] objectEnumerator];
}

- (BOOL)isEqualToDictionary:(NSDictionary*)dictionary {
    if (!dictionary || [self count] != [dictionary count]) return NO;
    for (size_t i = 0; i < _entries->keys.size(); ++i) {
        id other = [dictionary objectForKey:_entries->keys[i]];
        if (!other || ![_entries->objects[i] isEqual:other]) return NO;
    }
    return YES;
}

- (BOOL)isEqual:(id)object {
    return [object isKindOfClass:[NSDictionary class]] && [self isEqualToDictionary:object];
}

- (NSUInteger)hash {
    return [self count];
}

- (NSString*)description {
    NSMutableArray* entries = [NSMutableArray array];
    for (size_t i = 0; i < _entries->keys.size(); ++i)
        [entries addObject:[NSString stringWithFormat:@"%@ = %@;", _entries->keys[i],
                                                      _entries->objects[i]]];
    return [NSString stringWithFormat:@"{%@}", [entries componentsJoinedByString:@" "]];
}

@end

@implementation NSMutableDictionary

+ (id)dictionaryWithCapacity:(NSUInteger)capacity {
    return [[[self alloc] initWithCapacity:capacity] autorelease];
}

- (id)initWithCapacity:(NSUInteger)capacity {
    self = [self init];
    _entries->places.reserve(capacity);
    return self;
}

- (id)copyWithZone:(NSZone*)zone {
    return [[NSDictionary allocWithZone:zone] initWithDictionary:self];
}

- (void)setObject:(id)object forKey:(id)key {
    _entries->set(key, object);
}

- (void)removeObjectForKey:(id)key {
    _entries->remove(key);
}

- (void)removeAllObjects {
    _entries->clear();
}

- (void)addEntriesFromDictionary:(NSDictionary*)dictionary {
    NSEnumerator* keys = [dictionary keyEnumerator];
    while (id key = [keys nextObject]) _entries->set(key, [dictionary objectForKey:key]);
}

@end
