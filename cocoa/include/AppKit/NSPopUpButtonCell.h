// The cell of a pop-up button: a menu and which of its items is selected.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSMenu.h>

@interface NSPopUpButtonCell : NSButtonCell {
  @private
    NSMenu* _menu;
    NSMenuItem* _selectedItem; // not retained: the menu reports its removal
}
- (NSMenu*)menu;
- (void)setMenu:(NSMenu*)menu; // selects its first item

// The first item that is added to an empty menu is selected; when the selected one is removed, the
// first that is left is.
- (void)addItemWithTitle:(NSString*)title; // replaces an item with that title
- (NSMenuItem*)selectedItem;
- (NSInteger)indexOfSelectedItem;           // -1 if no item is selected
- (NSString*)titleOfSelectedItem;           // nil if no item is selected
- (void)selectItem:(NSMenuItem*)item;       // nil selects none
- (void)selectItemAtIndex:(NSInteger)index; // negative selects none; beyond the end, no change

// Shows the list with the selected item over the frame and lets the user choose. A choice selects
// the item and sends the item's own action or, if it has none, the control's.
- (void)performClickWithFrame:(NSRect)frame inView:(NSView*)view;
@end
