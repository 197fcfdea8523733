// A button that shows one item of a list and opens the list on a click, on Space and on the up and
// down arrows. The mouse chooses by drag and release or by two clicks; in the open list the arrows
// move, Return and Space choose, Escape closes.
#pragma once

#include <AppKit/NSButton.h>
#include <AppKit/NSPopUpButtonCell.h>

@interface NSPopUpButton : NSButton
- (id)initWithFrame:(NSRect)frame pullsDown:(BOOL)pullsDown; // as of the cell
- (NSMenu*)menu;
- (void)setMenu:(NSMenu*)menu;
- (void)addItemWithTitle:(NSString*)title;
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
- (NSInteger)indexOfSelectedItem;
- (NSString*)titleOfSelectedItem;
- (void)selectItem:(NSMenuItem*)item;
- (void)selectItemAtIndex:(NSInteger)index;
- (void)selectItemWithTitle:(NSString*)title;
@end
