#include <AppKit/NSParagraphStyle.h>

@implementation NSParagraphStyle

+ (NSParagraphStyle*)defaultParagraphStyle {
    return [[[NSParagraphStyle alloc] init] autorelease];
}

- (id)mutableCopyWithZone:(NSZone*)__attribute__((unused))zone {
    NSMutableParagraphStyle* copy = [[NSMutableParagraphStyle alloc] init];
    [copy setAlignment:_alignment];
    return copy;
}

- (NSTextAlignment)alignment {
    return _alignment;
}

@end

@implementation NSMutableParagraphStyle

- (void)setAlignment:(NSTextAlignment)alignment {
    _alignment = alignment;
}

@end
