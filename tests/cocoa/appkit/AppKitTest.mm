#include "AppKitTest.h"

@implementation TestFlippedView
- (BOOL)isFlipped {
    return YES;
}
@end

@implementation TestEventView
- (void)scrollWheel:(NSEvent*)event {
    log->push_back("wheel " + std::to_string([event deltaY]));
}
- (void)mouseDown:(NSEvent*)event {
    const NSPoint at = [self convertPoint:[event locationInWindow] fromView:nil];
    log->push_back("down " + std::to_string(int(at.x)) + " " + std::to_string(int(at.y)));
}
- (BOOL)acceptsFirstResponder {
    return YES;
}
- (void)keyDown:(NSEvent*)event {
    log->push_back(std::string("key ") + [[event characters] UTF8String]);
}
@end

@implementation TestTarget
- (id)init {
    self = [super init];
    if (self) log = new std::vector<std::string>();
    return self;
}
- (void)dealloc {
    delete log;
    [super dealloc];
}
- (void)act:(id)sender {
    std::string entry = std::to_string([sender tag]);
    if (values) entry += std::string("=") + [[sender stringValue] UTF8String];
    log->push_back(entry);
    if (appkit_test::AppKitTest::hook) appkit_test::AppKitTest::hook(sender);
}
@end

namespace appkit_test {

std::function<void(id)> AppKitTest::hook;

void AppKitTest::SetUp() {
    _pool = [[NSAutoreleasePool alloc] init];
    static const bool warm = [] {
        // Shared objects that are never freed are made before anything is counted.
        [NSApplication sharedApplication];
        [NSScreen mainScreen];
        [NSRunLoop currentRunLoop];
        NSWindow* any = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 50, 50)
                                                    styleMask:NSTitledWindowMask
                                                      backing:NSBackingStoreBuffered
                                                        defer:YES];
        [any setTitle:@"X"];
        NSRenderView([any contentView], 1);
        [any displayIfNeeded];
        NSPostKey('x');
        NSDispatchEvents();
        [any release];
        return true;
    }();
    (void)warm;
    [_pool drain];
    _before = live_objects();
    _pool = [[NSAutoreleasePool alloc] init];
    NSUseHeadlessDisplay(NSMakeSize(1440, 900), 1);
    target = [[TestTarget alloc] init];
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 200, 400, 300)
                                         styleMask:NSTitledWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:YES];
    [window setReleasedWhenClosed:NO];
    content = [[[TestFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
    [window setContentView:content];
    [window makeKeyAndOrderFront:nil];
}

void AppKitTest::TearDown() {
    NSDispatchEvents();
    hook = nullptr;
    [window close];
    [window release];
    [target release];
    // The application retains the last event until the next comes.
    NSPostKey(' ');
    NSDispatchEvents();
    [_pool drain];
    EXPECT_EQ(live_objects(), _before);
}

NSButton* AppKitTest::button(NSRect frame, NSButtonType type, int tag) {
    NSButton* result = add([[NSButton alloc] initWithFrame:frame], tag);
    [result setButtonType:type];
    return result;
}

NSTextField* AppKitTest::field(NSRect frame, NSString* text, int tag) {
    NSTextField* result = add([[NSTextField alloc] initWithFrame:frame], tag);
    [result setStringValue:text];
    return result;
}

NSPopUpButton* AppKitTest::pop_up(NSRect frame, std::vector<NSString*> titles, int tag) {
    NSPopUpButton* result = add([[NSPopUpButton alloc] initWithFrame:frame], tag);
    for (NSString* title : titles) [result addItemWithTitle:title];
    return result;
}

std::vector<std::string> AppKitTest::take_log() {
    return std::exchange(*target->log, {});
}

NSPoint AppKitTest::middle(NSView* view) {
    return NSMakePoint(NSMidX([view bounds]), NSMidY([view bounds]));
}
void AppKitTest::click(NSView* view, NSInteger clicks) {
    NSPostClick(view, middle(view), clicks);
    NSDispatchEvents();
}
void AppKitTest::key(unichar character, NSUInteger modifiers) {
    NSPostKey(character, modifiers);
    NSDispatchEvents();
}
void AppKitTest::type(NSString* string) {
    NSPostText(string);
    NSDispatchEvents();
}

} // namespace appkit_test
