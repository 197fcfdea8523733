// The screen: points, y upwards from its lower left corner. There is one.
#pragma once

#include <Foundation/Foundation.h>

@class NSArray;

@interface NSScreen : NSObject
+ (NSScreen*)mainScreen;
- (NSRect)frame;
- (NSRect)visibleFrame; // without the menu bar
- (CGFloat)backingScaleFactor;
@end
