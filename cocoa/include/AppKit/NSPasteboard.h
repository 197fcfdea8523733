// The clipboard, for text.
#pragma once

#include <Foundation/Foundation.h>

@class NSArray;

FOUNDATION_EXPORT NSString* const NSStringPboardType;

@interface NSPasteboard : NSObject
+ (NSPasteboard*)generalPasteboard;
- (NSInteger)clearContents;                                // how often the board was taken so far
- (NSInteger)declareTypes:(NSArray*)types owner:(id)owner; // takes the board; text comes at once
- (BOOL)setString:(NSString*)text forType:(NSString*)type; // NO for any type but the string's
- (NSString*)stringForType:(NSString*)type;                // nil if there is none
@end
