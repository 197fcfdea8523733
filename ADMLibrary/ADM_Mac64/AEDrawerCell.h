// The cell of a picture: draws through its item's draw procedure.

#pragma once

#include <Cocoa/Cocoa.h>

class iADMItem;

@interface AEDrawerCell : NSButtonCell {
    iADMItem* __item; // not owned; it owns the cell's control
}
- (id)initWithADMItem:(iADMItem*)item;
// Asserts that there is an item. Without a draw procedure nothing is drawn; an exception of the
// procedure ends here.
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
@end
