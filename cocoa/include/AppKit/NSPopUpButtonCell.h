// The cell of a pop-up button: a menu and which of its items is selected.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSMenu.h>

@interface NSPopUpButtonCell : NSButtonCell {
  @private
    NSMenu* _menu;
    NSMenuItem* _selectedItem; // not retained: the menu tells when it goes
}
- (id)initTextCell:(NSString*)title pullsDown:(BOOL)pullsDown; // pull-downs are not offered: NO
- (NSMenu*)menu;
- (void)setMenu:(NSMenu*)menu; // selects its first item

// An item that comes into an empty menu becomes the selected one; when the selected one goes, the
// first that is left does.
- (void)addItemWithTitle:(NSString*)title; // another item with that title goes
- (void)insertItemWithTitle:(NSString*)title atIndex:(NSInteger)index;
- (void)removeItemAtIndex:(NSInteger)index;
- (void)removeAllItems;
- (NSInteger)numberOfItems;
- (NSArray*)itemArray;
- (NSArray*)itemTitles;
- (NSMenuItem*)itemAtIndex:(NSInteger)index;
- (NSString*)itemTitleAtIndex:(NSInteger)index;
- (NSInteger)indexOfItemWithTitle:(NSString*)title;

- (NSMenuItem*)selectedItem;
- (NSInteger)indexOfSelectedItem;             // -1 if none is
- (NSString*)titleOfSelectedItem;             // nil if none is
- (void)selectItem:(NSMenuItem*)item;         // nil: none
- (void)selectItemAtIndex:(NSInteger)index;   // negative: none; beyond the end: no change
- (void)selectItemWithTitle:(NSString*)title; // none if there is no such

// Shows the list with the selected item over the frame and lets the user choose. A choice selects
// the item and sends the item's own action or, if it has none, the control's.
- (void)performClickWithFrame:(NSRect)frame inView:(NSView*)view;
@end
