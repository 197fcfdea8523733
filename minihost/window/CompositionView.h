// The composition as it is seen from the chosen view point, with what is selected outlined.
//
// Left button: a click selects the layer under it, Shift or Ctrl adds or takes away; a drag selects
// what its rubber band touches. Right button: turns the custom view, moves the others; with Shift
// it moves that one too. Wheel, + and -: nearer and farther. Arrows turn or move, 0 brings the view
// back.
//
// The picture is painted anew only when the scene, the view point or the size has changed; what is
// selected is drawn over it.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

struct CompositionPicture;

@interface CompositionView : NSView {
  @private
    minihost::Workbench* _bench; // lives longer
    struct CompositionPicture* _picture;
    NSPoint _bandFrom, _bandTo;
    BOOL _hasBand;
}
- (void)setWorkbench:(minihost::Workbench*)bench;
@end
