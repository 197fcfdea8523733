// The target of every control of a dialog: turns an action into a notification.

#pragma once

#include <Cocoa/Cocoa.h>

class iADMDialog;

@interface ADMCommandAdapter : NSObject {
    iADMDialog* __dialog; // not retained: it owns the adapter
}
- (id)initWithADMDialog:(iADMDialog*)dialog;
// Calls the notify procedure of the item whose id is the sender's tag or, if it has none, the
// dialog's. Turns a radio button on first. Catches an exception of the procedure.
- (void)onControlClicked:(id)sender;
@end
