// Alert panels.
#pragma once

#include <Foundation/Foundation.h>

enum {
    NSAlertDefaultReturn = 1,
    NSAlertAlternateReturn = 0,
    NSAlertOtherReturn = -1,
    NSAlertErrorReturn = -2 // the panel was aborted
};

// Shows a panel with a title, a message formatted from `format` and up to three buttons, and waits
// until one is pressed: the default one by Return, one titled "Cancel" (or else the last) by
// Escape. A nil default button is "OK"; nil for the others leaves them out. On a display without a
// user it returns at once, with the answer that was set beforehand (AppKit/NSDisplayStandIn.h).
FOUNDATION_EXPORT NSInteger NSRunAlertPanel(NSString* title, NSString* format,
                                            NSString* defaultButton, NSString* alternateButton,
                                            NSString* otherButton, ...);
