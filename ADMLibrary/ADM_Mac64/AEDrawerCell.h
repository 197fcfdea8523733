// The cell of a picture: calls its item's draw procedure.

#pragma once

#include <Cocoa/Cocoa.h>

class iADMItem;

@interface AEDrawerCell : NSButtonCell {
    iADMItem* __item; // not owned; it owns the cell's control
}
- (id)initWithADMItem:(iADMItem*)item;
// Asserts that there is an item. Without a draw procedure it draws nothing; it catches an exception
// of the procedure.
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
@end
