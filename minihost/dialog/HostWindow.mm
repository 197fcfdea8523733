#include "minihost/dialog/HostWindow.h"

@implementation HostWindow
- (id)initWithContentRect:(NSRect)rect styleMask:(NSUInteger)mask {
    self = [super initWithContentRect:rect styleMask:mask backing:NSBackingStoreBuffered defer:YES];
    [self setReleasedWhenClosed:NO];
    return self;
}
// Also without a title bar.
- (BOOL)canBecomeKeyWindow {
    return YES;
}
@end

namespace minihost {

NSWindow* floating_dialog() {
    NSArray* windows = [[NSApplication sharedApplication] windows];
    for (NSUInteger i = [windows count]; i-- > 0;) {
        NSWindow* window = [windows objectAtIndex:i];
        if (![window isKindOfClass:[HostWindow class]]) return window;
    }
    return nil;
}

} // namespace minihost
