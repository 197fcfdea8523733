// The list of the composition's layers, top layer first: click, Shift-click and Ctrl-click select,
// so do a drag along the rows and the keys; Space adds or takes away.

#pragma once

#include "minihost/window/ListView.h"
#include "minihost/window/SceneEditor.h"

@interface LayerList : RowList {
  @private
    minihost::Workbench* _bench; // lives longer
    NSInteger _anchor;           // from which Shift extends
    minihost::Selection* _kept;  // what was selected besides when the drag began
}
- (void)setWorkbench:(minihost::Workbench*)bench;
@end
