// Plain values as objects: structures and pointers (NSValue) and numbers (NSNumber).
#pragma once

#include <Foundation/NSGeometry.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSRange.h>

@interface NSValue : NSObject <NSCopying> {
    void* _data;
    char* _type;
}
// The type is what @encode answers.
+ (id)valueWithBytes:(const void*)value objCType:(const char*)type;
+ (id)valueWithPointer:(const void*)pointer;
+ (id)valueWithNonretainedObject:(id)object;
+ (id)valueWithRange:(NSRange)range;
- (id)initWithBytes:(const void*)value objCType:(const char*)type;
- (void)getValue:(void*)value;
- (const char*)objCType;
- (BOOL)isEqualToValue:(NSValue*)value;
- (void*)pointerValue;
- (id)nonretainedObjectValue;
- (NSRange)rangeValue;
@end

@interface NSValue (NSValueGeometryExtensions)
+ (NSValue*)valueWithPoint:(NSPoint)point;
+ (NSValue*)valueWithSize:(NSSize)size;
+ (NSValue*)valueWithRect:(NSRect)rect;
- (NSPoint)pointValue;
- (NSSize)sizeValue;
- (NSRect)rectValue;
@end

// A number keeps what it was made from; asking for another type converts as C does, and takes the
// nearest representable value where C has none.
@interface NSNumber : NSValue {
    double _real;
    long long _whole;
    unsigned char _kind;
}
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value;
+ (NSNumber*)numberWithLong:(long)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
+ (NSNumber*)numberWithInteger:(NSInteger)value;
+ (NSNumber*)numberWithUnsignedInteger:(NSUInteger)value;
+ (NSNumber*)numberWithFloat:(float)value;
+ (NSNumber*)numberWithDouble:(double)value;
- (BOOL)boolValue;
- (int)intValue;
- (unsigned int)unsignedIntValue;
- (long)longValue;
- (long long)longLongValue;
- (NSInteger)integerValue;
- (NSUInteger)unsignedIntegerValue;
- (float)floatValue;
- (double)doubleValue;
- (NSString*)stringValue;
- (BOOL)isEqualToNumber:(NSNumber*)number;
- (NSComparisonResult)compare:(NSNumber*)number;
@end
