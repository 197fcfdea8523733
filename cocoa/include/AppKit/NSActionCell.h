// A cell with a target and an action.
#pragma once

#include <AppKit/NSCell.h>

@interface NSActionCell : NSCell {
  @private
    id _target; // not retained
    SEL _action;
}
- (void)setTarget:(id)target;
- (void)setAction:(SEL)action;
@end
