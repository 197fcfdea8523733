#include "minihost/dialog/HostWindows.h"

#include <set>

namespace minihost {

namespace {

std::set<NSWindow*> host_windows;

} // namespace

void claim_window(NSWindow* window) {
    host_windows.insert(window);
}

void disclaim_window(NSWindow* window) {
    host_windows.erase(window);
}

NSWindow* floating_dialog() {
    NSArray* windows = [[NSApplication sharedApplication] windows];
    for (NSUInteger i = [windows count]; i-- > 0;) {
        NSWindow* window = [windows objectAtIndex:i];
        if (!host_windows.contains(window)) return window;
    }
    return nil;
}

} // namespace minihost
