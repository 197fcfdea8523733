#include <CoreGraphics/CGColorSpace.h>

#include <Foundation/NSObject.h>

@interface CGDeviceRGBColorSpace : NSObject
@end
@implementation CGDeviceRGBColorSpace
@end

CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void) {
    return (CGColorSpaceRef)[[CGDeviceRGBColorSpace alloc] init];
}

CGColorSpaceRef CGColorSpaceRetain(CGColorSpaceRef space) {
    return (CGColorSpaceRef)[(id)space retain];
}

void CGColorSpaceRelease(CGColorSpaceRef space) {
    [(id)space release];
}

size_t CGColorSpaceGetNumberOfComponents(CGColorSpaceRef space) {
    return space ? 3 : 0;
}
