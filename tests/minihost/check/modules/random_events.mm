// Its button crashes at the Escape key.

#include "plugin.h"

#include <Cocoa/Cocoa.h>
#include <cstdlib>

@interface TestTouchyButton : NSButton
@end

@implementation TestTouchyButton
- (BOOL)acceptsFirstResponder {
    return YES;
}
- (void)mouseDown:(NSEvent*)event {
    [[self window] makeFirstResponder:self];
    [super mouseDown:event];
}
- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    if ([characters length] && [characters characterAtIndex:0] == NSEscapeCharacter) std::abort();
}
@end

struct Broken : Plugin {
    bool has_panel() const override { return true; }
    void fill(NSView* container) override {
        NSButton* button = [[TestTouchyButton alloc] initWithFrame:NSMakeRect(10, 10, 80, 30)];
        [button setTitle:@"Press"];
        [button setTag:7];
        [container addSubview:button];
        [button release];
    }
};
PLUGIN_IS(Broken)
