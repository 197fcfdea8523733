#include <AppKit/NSPasteboard.h>

#include "WindowServer.h"

NSString* const NSStringPboardType = @"NSStringPboardType";

@implementation NSPasteboard
+ (NSPasteboard*)generalPasteboard {
    static NSPasteboard* board = [[NSPasteboard alloc] init];
    return board;
}
- (NSInteger)clearContents {
    static NSInteger changes = 0;
    cocoa::WindowServer::shared().display().set_clipboard("");
    return ++changes;
}
- (NSInteger)declareTypes:(NSArray*)__attribute__((unused))types
                    owner:(id)__attribute__((unused))owner {
    return [self clearContents];
}
- (BOOL)setString:(NSString*)text forType:(NSString*)type {
    if (!text || ![type isEqualToString:NSStringPboardType]) return NO;
    cocoa::WindowServer::shared().display().set_clipboard([text UTF8String]);
    return YES;
}
- (NSString*)stringForType:(NSString*)type {
    if (![type isEqualToString:NSStringPboardType]) return nil;
    const std::string text = cocoa::WindowServer::shared().display().clipboard();
    return text.empty() ? nil : [NSString stringWithUTF8String:text.c_str()];
}
@end
