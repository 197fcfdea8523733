// Menus: of the menu bar and of pop-up buttons. For an index out of range methods return nil or do
// nothing.
#pragma once

#include <AppKit/NSMenuItem.h>
#include <Foundation/Foundation.h>

@class NSEvent, NSMutableArray, NSPopUpButtonCell;

@interface NSMenu : NSObject {
  @private
    NSString* _title;
    NSMutableArray* _items;
    NSPopUpButtonCell* _popUpCell; // whose list it is; not retained
}
- (id)initWithTitle:(NSString*)title;
- (NSString*)title; // not shown: items with a submenu have titles of their own

- (void)addItem:(NSMenuItem*)item;
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key;
- (void)insertItem:(NSMenuItem*)item atIndex:(NSInteger)index;
- (void)removeItemAtIndex:(NSInteger)index;
- (NSInteger)numberOfItems;
- (NSMenuItem*)itemAtIndex:(NSInteger)index;
- (NSInteger)indexOfItem:(NSMenuItem*)item; // -1 if it is not in the menu
- (NSInteger)indexOfItemWithTitle:(NSString*)title;

// Enables an item that has an action and no submenu if there is a target for the action whose
// validateMenuItem:, if it has one, returns YES; disables it otherwise.
- (void)update;

// Performs the enabled item whose key equivalent the event is, in this menu or one below it. The
// control key counts as the command key.
- (BOOL)performKeyEquivalent:(NSEvent*)event;
- (void)performActionForItemAtIndex:(NSInteger)index;
@end
