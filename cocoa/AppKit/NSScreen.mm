#include <AppKit/NSScreen.h>

#include "Theme.h"
#include "WindowServer.h"

@implementation NSScreen
+ (NSScreen*)mainScreen {
    static NSScreen* screen = [[NSScreen alloc] init];
    return screen;
}
- (NSRect)frame {
    const NSSize size = cocoa::WindowServer::shared().screen_size();
    return NSMakeRect(0, 0, size.width, size.height);
}
- (NSRect)visibleFrame {
    NSRect frame = [self frame];
    frame.size.height -= cocoa::theme::menu_bar_height;
    if (frame.size.height < 0) frame.size.height = 0;
    return frame;
}
- (CGFloat)backingScaleFactor {
    return cocoa::WindowServer::shared().scale();
}
@end
