// The target of every control of a dialog: turns an action into a notification.

#pragma once

#include <Cocoa/Cocoa.h>

class iADMDialog;

@interface ADMCommandAdapter : NSObject {
    iADMDialog* __dialog; // not retained: it owns the adapter
}
- (id)initWithADMDialog:(iADMDialog*)dialog;
// Tells the notify procedure of the item whose id is the sender's tag or, if it has none, the
// dialog's. A radio button is turned on first. An exception of the procedure ends here.
- (void)onControlClicked:(id)sender;
@end
