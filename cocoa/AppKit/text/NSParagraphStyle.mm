#include <AppKit/NSParagraphStyle.h>

@implementation NSParagraphStyle

+ (NSParagraphStyle*)defaultParagraphStyle {
    return [[[NSParagraphStyle alloc] init] autorelease];
}

- (id)init {
    self = [super init];
    if (self) _alignment = NSNaturalTextAlignment;
    return self;
}

- (id)copyAs:(Class)kind {
    NSParagraphStyle* copy = [[kind alloc] init];
    copy->_alignment = _alignment;
    copy->_lineBreakMode = _lineBreakMode;
    return copy;
}

- (id)copyWithZone:(NSZone*)zone {
    (void)zone;
    return [self copyAs:[NSParagraphStyle class]];
}

- (id)mutableCopyWithZone:(NSZone*)zone {
    (void)zone;
    return [self copyAs:[NSMutableParagraphStyle class]];
}

- (BOOL)isEqual:(id)other {
    return [other isKindOfClass:[NSParagraphStyle class]] && [other alignment] == _alignment &&
           [other lineBreakMode] == _lineBreakMode;
}

- (NSUInteger)hash {
    return _alignment * 8 + _lineBreakMode;
}

- (NSTextAlignment)alignment {
    return _alignment;
}

- (NSLineBreakMode)lineBreakMode {
    return _lineBreakMode;
}

@end

@implementation NSMutableParagraphStyle

- (void)setAlignment:(NSTextAlignment)alignment {
    _alignment = alignment;
}

- (void)setLineBreakMode:(NSLineBreakMode)mode {
    _lineBreakMode = mode;
}

- (void)setParagraphStyle:(NSParagraphStyle*)other {
    _alignment = [other alignment];
    _lineBreakMode = [other lineBreakMode];
}

@end
