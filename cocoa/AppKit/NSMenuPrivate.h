// What menus, their items and pop-up cells need of each other.
#pragma once

#include <AppKit/NSMenu.h>
#include <AppKit/NSPopUpButtonCell.h>

@interface NSMenu (Private)
- (void)setPopUpCell:(NSPopUpButtonCell*)cell;
- (void)itemChanged:(NSMenuItem*)item;
@end

@interface NSMenuItem (Private)
- (void)setMenu:(NSMenu*)menu;
@end

@interface NSPopUpButtonCell (Private)
- (void)menuDidAddItem:(NSMenuItem*)item;
- (void)menuDidRemoveItem:(NSMenuItem*)item;
- (void)menuDidChangeItem:(NSMenuItem*)item;
- (void)menuWillBeFreed;
@end
