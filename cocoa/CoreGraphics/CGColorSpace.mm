#include <CoreGraphics/CGColorSpace.h>

#include <Foundation/NSObject.h>

@interface CGDeviceRGBColorSpace : NSObject
@end
@implementation CGDeviceRGBColorSpace
@end

CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void) {
    return (CGColorSpaceRef)[[CGDeviceRGBColorSpace alloc] init];
}

void CGColorSpaceRelease(CGColorSpaceRef space) {
    [(id)space release];
}
