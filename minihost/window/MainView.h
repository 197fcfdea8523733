// What fills the window below the menu bar: composition view, layer list, dock and status line, in
// their places whatever the window's size.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

@class CompositionView, LayerList;

struct DeskState;

@interface Desk : NSView {
  @private
    struct DeskState* _state;
    CompositionView* _view; // held as subviews
    LayerList* _list;
}
- (void)setWorkbench:(minihost::Workbench*)bench;
- (CompositionView*)compositionView;
- (LayerList*)layerList;

// A view stands in the dock, below its title, while it is shown there; nil leaves the dock empty.
- (void)dock:(NSView*)view title:(const std::string&)title;
- (void)setStatus:(const std::string&)text; // draws it if it is another one
- (void)lookChanged;                        // draws view and list anew
@end
