// The list of the composition's layers, top layer first. Click, Shift-click, Ctrl-click, dragging
// and the keys select; Space adds or removes a layer.

#pragma once

#include "minihost/window/ListView.h"
#include "minihost/window/SceneEditor.h"

@interface LayerListView : ListView {
  @private
    minihost::SceneEditor* _editor; // not owned
    NSInteger _anchor;              // where Shift extends the selection from
    minihost::Selection* _kept;     // what stays selected while dragging
}
- (void)setEditor:(minihost::SceneEditor*)editor;
@end
