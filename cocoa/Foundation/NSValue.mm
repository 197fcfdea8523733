#include <Foundation/NSValue.h>

#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

template <typename T>
T value_of(NSValue* value) {
    T held;
    if (objc_sizeof_type([value objCType]) != sizeof(T))
        [NSException raise:NSInvalidArgumentException
                    format:@"a value of type %s is asked for another", [value objCType]];
    [value getValue:&held];
    return held;
}

// What a number was made from.
enum Kind : unsigned char { truth, whole, unsigned_whole, single_real, real };

bool fits_long_long(unsigned char kind) {
    return kind == truth || kind == whole;
}

long long to_whole(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 0x1p63) return LLONG_MAX;
    if (value < -0x1p63) return LLONG_MIN;
    return static_cast<long long>(value);
}

} // namespace

@implementation NSValue

+ (id)valueWithBytes:(const void*)value objCType:(const char*)type {
    return [[[self alloc] initWithBytes:value objCType:type] autorelease];
}

+ (id)valueWithPointer:(const void*)pointer {
    return [self valueWithBytes:&pointer objCType:@encode(void*)];
}

+ (id)valueWithNonretainedObject:(id)object {
    return [self valueWithBytes:&object objCType:@encode(void*)];
}

+ (id)valueWithRange:(NSRange)range {
    return [self valueWithBytes:&range objCType:@encode(NSRange)];
}

- (id)initWithBytes:(const void*)value objCType:(const char*)type {
    self = [super init];
    if (!self) return nil;
    const size_t size = objc_sizeof_type(type);
    _type = strdup(type);
    _data = malloc(size);
    memcpy(_data, value, size);
    return self;
}

- (void)dealloc {
    free(_type);
    free(_data);
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (void)getValue:(void*)value {
    memcpy(value, _data, objc_sizeof_type(_type));
}

- (const char*)objCType {
    return _type;
}

- (BOOL)isEqualToValue:(NSValue*)value {
    return value && strcmp(_type, value->_type) == 0 &&
           memcmp(_data, value->_data, objc_sizeof_type(_type)) == 0;
}

- (BOOL)isEqual:(id)object {
    return [object isKindOfClass:[NSValue class]] && [self isEqualToValue:object];
}

- (NSUInteger)hash {
    const std::string_view bytes(static_cast<char*>(_data), objc_sizeof_type(_type));
    return std::hash<std::string_view>()(bytes);
}

- (void*)pointerValue {
    return value_of<void*>(self);
}

- (id)nonretainedObjectValue {
    return value_of<id>(self);
}

- (NSRange)rangeValue {
    return value_of<NSRange>(self);
}

@end

@implementation NSValue (NSValueGeometryExtensions)

+ (NSValue*)valueWithPoint:(NSPoint)point {
    return [self valueWithBytes:&point objCType:@encode(NSPoint)];
}

+ (NSValue*)valueWithSize:(NSSize)size {
    return [self valueWithBytes:&size objCType:@encode(NSSize)];
}

+ (NSValue*)valueWithRect:(NSRect)rect {
    return [self valueWithBytes:&rect objCType:@encode(NSRect)];
}

- (NSPoint)pointValue {
    return value_of<NSPoint>(self);
}

- (NSSize)sizeValue {
    return value_of<NSSize>(self);
}

- (NSRect)rectValue {
    return value_of<NSRect>(self);
}

@end

@implementation NSNumber

static NSNumber* make_whole(Class of_class, long long value, Kind kind, const char* type,
                            const void* bytes) {
    NSNumber* made = [[of_class alloc] initWithBytes:bytes objCType:type];
    made->_whole = value;
    made->_real = kind == unsigned_whole ? (double)(unsigned long long)value : (double)value;
    made->_kind = kind;
    return [made autorelease];
}

static NSNumber* make_real(Class of_class, double value, Kind kind, const char* type,
                           const void* bytes) {
    NSNumber* made = [[of_class alloc] initWithBytes:bytes objCType:type];
    made->_whole = to_whole(value);
    made->_real = value;
    made->_kind = kind;
    return [made autorelease];
}

+ (NSNumber*)numberWithBool:(BOOL)value {
    return make_whole(self, value ? 1 : 0, truth, @encode(BOOL), &value);
}

+ (NSNumber*)numberWithInt:(int)value {
    return make_whole(self, value, whole, @encode(int), &value);
}

+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value {
    return make_whole(self, value, whole, @encode(unsigned int), &value);
}

+ (NSNumber*)numberWithLong:(long)value {
    return make_whole(self, value, whole, @encode(long), &value);
}

+ (NSNumber*)numberWithLongLong:(long long)value {
    return make_whole(self, value, whole, @encode(long long), &value);
}

+ (NSNumber*)numberWithInteger:(NSInteger)value {
    return make_whole(self, value, whole, @encode(NSInteger), &value);
}

+ (NSNumber*)numberWithUnsignedInteger:(NSUInteger)value {
    return make_whole(self, (long long)value, unsigned_whole, @encode(NSUInteger), &value);
}

+ (NSNumber*)numberWithFloat:(float)value {
    return make_real(self, value, single_real, @encode(float), &value);
}

+ (NSNumber*)numberWithDouble:(double)value {
    return make_real(self, value, real, @encode(double), &value);
}

- (BOOL)boolValue {
    return _kind >= single_real ? _real != 0 : _whole != 0;
}

- (int)intValue {
    return _kind >= single_real ? (int)std::clamp<long long>(_whole, INT_MIN, INT_MAX)
                                : (int)_whole;
}

- (unsigned int)unsignedIntValue {
    return (unsigned int)_whole;
}

- (long)longValue {
    return _whole;
}

- (long long)longLongValue {
    return _whole;
}

- (NSInteger)integerValue {
    return _whole;
}

- (NSUInteger)unsignedIntegerValue {
    return (NSUInteger)_whole;
}

- (float)floatValue {
    return (float)_real;
}

- (double)doubleValue {
    return _real;
}

- (NSString*)stringValue {
    switch (_kind) {
    case single_real:
        return [NSString stringWithFormat:@"%0.7g", _real];
    case real:
        return [NSString stringWithFormat:@"%0.16g", _real];
    case unsigned_whole:
        return [NSString stringWithFormat:@"%llu", _whole];
    default:
        return [NSString stringWithFormat:@"%lld", _whole];
    }
}

- (NSString*)description {
    return [self stringValue];
}

- (NSComparisonResult)compare:(NSNumber*)number {
    if (!number) [NSException raise:NSInvalidArgumentException format:@"nil number"];
    const auto order = [](auto a, auto b) { return NSComparisonResult((a > b) - (a < b)); };
    const bool wholes = fits_long_long(_kind) && fits_long_long(number->_kind);
    return wholes ? order(_whole, number->_whole) : order(_real, number->_real);
}

- (BOOL)isEqualToNumber:(NSNumber*)number {
    return number && [self compare:number] == NSOrderedSame;
}

- (BOOL)isEqualToValue:(NSValue*)value {
    return [value isKindOfClass:[NSNumber class]] && [self isEqualToNumber:(NSNumber*)value];
}

- (NSUInteger)hash {
    return std::hash<double>()(_real);
}

@end
