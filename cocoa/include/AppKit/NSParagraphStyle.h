// How the lines of a text are set.
#pragma once

#include <Foundation/Foundation.h>

enum {
    NSLeftTextAlignment = 0,
    NSRightTextAlignment = 1,
    NSCenterTextAlignment = 2,
    NSJustifiedTextAlignment = 3,
    NSNaturalTextAlignment = 4
};
typedef NSUInteger NSTextAlignment;

enum {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByCharWrapping,
    NSLineBreakByClipping,
    NSLineBreakByTruncatingHead,
    NSLineBreakByTruncatingTail,
    NSLineBreakByTruncatingMiddle
};
typedef NSUInteger NSLineBreakMode;

@interface NSParagraphStyle : NSObject <NSCopying, NSMutableCopying> {
    NSTextAlignment _alignment;
    NSLineBreakMode _lineBreakMode;
}
+ (NSParagraphStyle*)defaultParagraphStyle; // natural alignment, wrapping at words
- (NSTextAlignment)alignment;
- (NSLineBreakMode)lineBreakMode;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
- (void)setAlignment:(NSTextAlignment)alignment;
- (void)setLineBreakMode:(NSLineBreakMode)mode;
- (void)setParagraphStyle:(NSParagraphStyle*)other;
@end
