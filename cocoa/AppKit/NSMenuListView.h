// The view of an open menu list: rows with check mark, title, key equivalent, submenu arrow.
#pragma once

#include <AppKit/NSView.h>

@class NSMenu;

@interface NSMenuListView : NSView {
  @private
    NSMenu* _menu;
    NSInteger _highlighted;
}
- (id)initWithMenu:(NSMenu*)menu frame:(NSRect)frame;
- (NSInteger)highlightedItem; // -1 for none
- (void)setHighlightedItem:(NSInteger)index;
- (NSInteger)itemAtPoint:(NSPoint)point; // -1 for none
- (NSRect)rectOfItem:(NSInteger)index;
@end
