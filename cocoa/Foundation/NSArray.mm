#include <Foundation/NSArray.h>

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <vector>

struct NSArrayItems {
    std::vector<id> all;

    void insert(id object, NSUInteger index) {
        if (!object)
            [NSException raise:NSInvalidArgumentException format:@"nil object in an array"];
        check(index, all.size() + 1);
        all.insert(all.begin() + index, [object retain]);
    }
    static void check(NSUInteger index, NSUInteger end) {
        if (index >= end)
            [NSException raise:NSRangeException format:@"index %lu is beyond %lu", index, end];
    }
};

@implementation NSArray

+ (id)array {
    return [[[self alloc] init] autorelease];
}

+ (id)arrayWithArray:(NSArray*)array {
    return [[[self alloc] initWithArray:array] autorelease];
}

- (id)init {
    self = [super init];
    if (self) _items = new NSArrayItems;
    return self;
}

- (id)initWithArray:(NSArray*)array {
    self = [self init];
    if (!self || !array) return self;
    _items->all = array->_items->all;
    for (id object : _items->all) [object retain];
    return self;
}

- (void)dealloc {
    for (id object : _items->all) [object release];
    delete _items;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (NSUInteger)count {
    return _items->all.size();
}

- (id)objectAtIndex:(NSUInteger)index {
    NSArrayItems::check(index, _items->all.size());
    return _items->all[index];
}

- (id)lastObject {
    return _items->all.empty() ? nil : _items->all.back();
}

- (NSUInteger)indexOfObjectIdenticalTo:(id)object {
    const auto found = std::find(_items->all.begin(), _items->all.end(), object);
    return found == _items->all.end() ? NSNotFound : found - _items->all.begin();
}

@end

@implementation NSMutableArray

- (id)copyWithZone:(NSZone*)zone {
    return [[NSArray allocWithZone:zone] initWithArray:self];
}

- (void)addObject:(id)object {
    [self insertObject:object atIndex:_items->all.size()];
}

- (void)insertObject:(id)object atIndex:(NSUInteger)index {
    _items->insert(object, index);
}

- (void)removeObjectAtIndex:(NSUInteger)index {
    NSArrayItems::check(index, _items->all.size());
    id old = _items->all[index];
    _items->all.erase(_items->all.begin() + index);
    [old release];
}

- (void)removeObjectIdenticalTo:(id)object {
    for (NSUInteger i = _items->all.size(); i-- > 0;)
        if (_items->all[i] == object) [self removeObjectAtIndex:i];
}

@end
