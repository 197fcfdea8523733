// How the lines of a text are set. Lines wrap at words.
#pragma once

#include <Foundation/Foundation.h>

enum { NSLeftTextAlignment = 0, NSRightTextAlignment = 1, NSCenterTextAlignment = 2 };
typedef NSUInteger NSTextAlignment;

@interface NSParagraphStyle : NSObject <NSMutableCopying> {
    NSTextAlignment _alignment;
}
+ (NSParagraphStyle*)defaultParagraphStyle; // left
- (NSTextAlignment)alignment;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
- (void)setAlignment:(NSTextAlignment)alignment;
@end
