#include <Foundation/NSArray.h>

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <cstring>
#include <vector>

struct NSArrayItems {
    std::vector<id> all;
};

namespace {

void check_index(NSUInteger index, NSUInteger end) {
    if (index >= end)
        [NSException raise:NSRangeException format:@"index %lu is beyond %lu", index, end];
}

void check_object(id object) {
    if (!object) [NSException raise:NSInvalidArgumentException format:@"nil object in an array"];
}

void sort(std::vector<id>& objects, SEL comparator) {
    std::stable_sort(objects.begin(), objects.end(), [comparator](id a, id b) {
        auto compare = reinterpret_cast<NSComparisonResult (*)(id, SEL, id)>(
            reinterpret_cast<void (*)()>(objc_msg_lookup(a, comparator)));
        return compare(a, comparator, b) == NSOrderedAscending;
    });
}

// The objects of a nil-ended argument list.
std::vector<id> collect(id first, va_list rest) {
    std::vector<id> objects;
    for (id object = first; object; object = va_arg(rest, id)) objects.push_back(object);
    return objects;
}

} // namespace

@implementation NSArray

+ (id)array {
    return [[[self alloc] init] autorelease];
}

+ (id)arrayWithObject:(id)object {
    return [self arrayWithObjects:&object count:1];
}

+ (id)arrayWithObjects:(id)first, ... {
    va_list rest;
    va_start(rest, first);
    const std::vector<id> objects = collect(first, rest);
    va_end(rest);
    return [self arrayWithObjects:objects.data() count:objects.size()];
}

+ (id)arrayWithObjects:(const id*)objects count:(NSUInteger)count {
    return [[[self alloc] initWithObjects:objects count:count] autorelease];
}

+ (id)arrayWithArray:(NSArray*)array {
    return [[[self alloc] initWithArray:array] autorelease];
}

- (id)init {
    return [self initWithObjects:(const id*)NULL count:0];
}

- (id)initWithObjects:(id)first, ... {
    va_list rest;
    va_start(rest, first);
    const std::vector<id> objects = collect(first, rest);
    va_end(rest);
    return [self initWithObjects:objects.data() count:objects.size()];
}

- (id)initWithArray:(NSArray*)array {
    return array ? [self initWithObjects:array->_items->all.data() count:[array count]]
                 : [self init];
}

- (id)initWithObjects:(const id*)objects count:(NSUInteger)count {
    self = [super init];
    if (!self) return nil;
    _items = new NSArrayItems;
    for (NSUInteger i = 0; i < count; ++i) {
        check_object(objects[i]);
        _items->all.push_back([objects[i] retain]);
    }
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

- (id)mutableCopyWithZone:(NSZone*)zone {
    return [[NSMutableArray allocWithZone:zone] initWithArray:self];
}

- (NSUInteger)count {
    return _items->all.size();
}

- (id)objectAtIndex:(NSUInteger)index {
    check_index(index, _items->all.size());
    return _items->all[index];
}

- (id)firstObject {
    return _items->all.empty() ? nil : _items->all.front();
}

- (id)lastObject {
    return _items->all.empty() ? nil : _items->all.back();
}

- (BOOL)containsObject:(id)object {
    return [self indexOfObject:object] != NSNotFound;
}

- (NSUInteger)indexOfObject:(id)object {
    for (NSUInteger i = 0; i < _items->all.size(); ++i)
        if (_items->all[i] == object || [_items->all[i] isEqual:object]) return i;
    return NSNotFound;
}

- (NSUInteger)indexOfObjectIdenticalTo:(id)object {
    const auto found = std::find(_items->all.begin(), _items->all.end(), object);
    return found == _items->all.end() ? NSNotFound : found - _items->all.begin();
}

- (BOOL)isEqualToArray:(NSArray*)array {
    if (!array) return NO;
    const std::vector<id>&a = _items->all, &b = array->_items->all;
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](id x, id y) { return x == y || [x isEqual:y]; });
}

- (BOOL)isEqual:(id)object {
    return [object isKindOfClass:[NSArray class]] && [self isEqualToArray:object];
}

- (NSUInteger)hash {
    return [self count];
}

- (NSEnumerator*)objectEnumerator {
    return [[[NSEnumerator alloc] performSelector:@selector(initWithArray:)
                                       withObject:self] autorelease];
}

- (NSArray*)arrayByAddingObject:(id)object {
    NSMutableArray* longer = [NSMutableArray arrayWithArray:self];
    [longer addObject:object];
    return longer;
}

- (NSArray*)subarrayWithRange:(NSRange)range {
    const NSUInteger count = [self count];
    if (range.location > count || range.length > count - range.location)
        [NSException raise:NSRangeException
                    format:@"range {%lu, %lu} is outside an array of %lu", range.location,
                           range.length, count];
    return [NSArray arrayWithObjects:_items->all.data() + range.location count:range.length];
}

- (NSString*)componentsJoinedByString:(NSString*)separator {
    NSMutableString* joined = [NSMutableString string];
    for (NSUInteger i = 0; i < _items->all.size(); ++i) {
        if (i > 0) [joined appendString:separator];
        [joined appendString:[_items->all[i] description]];
    }
    return joined;
}

- (NSString*)description {
    return [NSString stringWithFormat:@"(%@)", [self componentsJoinedByString:@", "]];
}

- (void)makeObjectsPerformSelector:(SEL)selector {
    for (id object : _items->all) [object performSelector:selector];
}

- (void)makeObjectsPerformSelector:(SEL)selector withObject:(id)argument {
    for (id object : _items->all) [object performSelector:selector withObject:argument];
}

- (NSArray*)sortedArrayUsingSelector:(SEL)comparator {
    std::vector<id> sorted = _items->all;
    sort(sorted, comparator);
    return [NSArray arrayWithObjects:sorted.data() count:sorted.size()];
}

@end

@implementation NSMutableArray

+ (id)arrayWithCapacity:(NSUInteger)capacity {
    return [[[self alloc] initWithCapacity:capacity] autorelease];
}

- (id)initWithCapacity:(NSUInteger)capacity {
    self = [self init];
    _items->all.reserve(capacity);
    return self;
}

- (id)copyWithZone:(NSZone*)zone {
    return [[NSArray allocWithZone:zone] initWithArray:self];
}

- (void)addObject:(id)object {
    [self insertObject:object atIndex:_items->all.size()];
}

- (void)addObjectsFromArray:(NSArray*)array {
    if (!array) return;
    const std::vector<id> added = array->_items->all; // a copy, for it may be this array
    for (id object : added) [self addObject:object];
}

- (void)insertObject:(id)object atIndex:(NSUInteger)index {
    check_object(object);
    check_index(index, _items->all.size() + 1);
    _items->all.insert(_items->all.begin() + index, [object retain]);
}

- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(id)object {
    check_object(object);
    check_index(index, _items->all.size());
    id old = _items->all[index];
    _items->all[index] = [object retain];
    [old release];
}

- (void)exchangeObjectAtIndex:(NSUInteger)first withObjectAtIndex:(NSUInteger)second {
    check_index(first, _items->all.size());
    check_index(second, _items->all.size());
    std::swap(_items->all[first], _items->all[second]);
}

- (void)removeObjectAtIndex:(NSUInteger)index {
    check_index(index, _items->all.size());
    id old = _items->all[index];
    _items->all.erase(_items->all.begin() + index);
    [old release];
}

- (void)removeObject:(id)object {
    [object retain];
    for (NSUInteger i = _items->all.size(); i-- > 0;)
        if (_items->all[i] == object || [_items->all[i] isEqual:object])
            [self removeObjectAtIndex:i];
    [object release];
}

- (void)removeObjectIdenticalTo:(id)object {
    for (NSUInteger i = _items->all.size(); i-- > 0;)
        if (_items->all[i] == object) [self removeObjectAtIndex:i];
}

- (void)removeLastObject {
    check_index(0, _items->all.size());
    [self removeObjectAtIndex:_items->all.size() - 1];
}

- (void)removeAllObjects {
    std::vector<id> old;
    old.swap(_items->all);
    for (id object : old) [object release];
}

- (void)sortUsingSelector:(SEL)comparator {
    sort(_items->all, comparator);
}

@end

@implementation NSEnumerator

- (id)initWithArray:(NSArray*)array {
    self = [super init];
    if (self) _array = [array retain];
    return self;
}

- (void)dealloc {
    [_array release];
    [super dealloc];
}

- (id)nextObject {
    return _next < [_array count] ? [_array objectAtIndex:_next++] : nil;
}

- (NSArray*)allObjects {
    const NSUInteger from = _next;
    _next = [_array count];
    return [_array subarrayWithRange:NSMakeRange(from, _next - from)];
}

@end
