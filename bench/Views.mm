#include "bench/Views.h"

#include <Cocoa/Cocoa.h>

namespace bench {

namespace {

NSView* new_control(const minihost::Control& control, NSRect frame) {
    NSString* const text = [NSString stringWithUTF8String:control.text.c_str()];
    if (control.kind == "box") return [[NSBox alloc] initWithFrame:frame];
    if (control.kind == "text" || control.kind == "edit") {
        NSTextField* const field = [[NSTextField alloc] initWithFrame:frame];
        [field setStringValue:text];
        [field setEditable:control.kind == "edit"];
        return field;
    }
    if (control.kind == "pop-up") {
        NSPopUpButton* const popup = [[NSPopUpButton alloc] initWithFrame:frame pullsDown:NO];
        [popup addItemWithTitle:text];
        return popup;
    }
    NSButton* const button = [[NSButton alloc] initWithFrame:frame];
    if (control.kind == "check box") [button setButtonType:NSSwitchButton];
    if (control.kind == "radio button") [button setButtonType:NSRadioButton];
    [button setTitle:text];
    return button;
}

} // namespace

void send_action(NSView* root, int tag) {
    NSControl* const control = static_cast<NSControl*>([root viewWithTag:tag]);
    [control sendAction:[control action] to:[control target]];
}

void open_and_close_plain_controls(const std::vector<minihost::Control>& controls, double width,
                                   double height) {
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    NSWindow* const window =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, width, height)
                                    styleMask:NSTitledWindowMask
                                      backing:NSBackingStoreBuffered
                                        defer:YES];
    [window setReleasedWhenClosed:NO];
    for (const minihost::Control& it : controls) {
        NSView* const view =
            new_control(it, NSMakeRect(it.left, it.top, it.right - it.left, it.bottom - it.top));
        [[window contentView] addSubview:view];
        [view release];
    }
    [window makeKeyAndOrderFront:nil];
    [window close];
    [window release];
    [pool drain];
}

} // namespace bench
