// Fills the main window below the menu bar: composition view, layer list, dock and status line.

#pragma once

#include "minihost/window/SceneEditor.h"

#include <Cocoa/Cocoa.h>

@class CompositionView, LayerListView;

struct MainViewState;

@interface MainView : NSView {
  @private
    struct MainViewState* _state;
    CompositionView* _view; // retained as subviews
    LayerListView* _list;
}
- (void)setEditor:(minihost::SceneEditor*)editor;
- (CompositionView*)compositionView;
- (LayerListView*)layerList;

// Shows a panel in the dock, below its title; nil leaves the dock empty.
- (void)dock:(NSView*)panel title:(const std::string&)title;
- (void)setStatus:(const std::string&)text;
- (void)contentsChanged; // redraws composition view and layer list
@end
