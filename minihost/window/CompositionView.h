// The composition from the chosen viewpoint, with the selected layers outlined.
//
// Left button: a click selects the layer under the mouse, Shift or Ctrl adds or removes it; a drag
// selects what the rubber band touches. Right button: orbits in the custom view, pans in the others
// and with Shift. Wheel, + and -: zoom. Arrows orbit or pan, 0 resets the view.
//
// The picture is repainted only when the scene, the viewpoint or the size has changed; the outlines
// are drawn over it.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

struct CompositionPicture;

@interface CompositionView : NSView {
  @private
    minihost::SceneEditor* _editor; // not owned
    struct CompositionPicture* _picture;
    NSPoint _bandFrom, _bandTo;
    BOOL _hasBand;
}
- (void)setEditor:(minihost::SceneEditor*)editor;
@end
