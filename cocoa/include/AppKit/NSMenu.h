// Menus: of the menu bar and of pop-up buttons. An index out of range is answered with nil or is
// passed over.
#pragma once

#include <AppKit/NSMenuItem.h>
#include <Foundation/Foundation.h>

@class NSArray, NSEvent, NSMutableArray, NSPopUpButtonCell;

@interface NSMenu : NSObject {
  @private
    NSString* _title;
    NSMutableArray* _items;
    NSMenu* _supermenu;            // not retained
    NSPopUpButtonCell* _popUpCell; // whose list this is; not retained
    BOOL _autoenablesItems;
}
- (id)initWithTitle:(NSString*)title;
- (NSString*)title;
- (void)setTitle:(NSString*)title;

- (void)addItem:(NSMenuItem*)item;
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key;
- (void)insertItem:(NSMenuItem*)item atIndex:(NSInteger)index;
- (NSMenuItem*)insertItemWithTitle:(NSString*)title
                            action:(SEL)action
                     keyEquivalent:(NSString*)key
                           atIndex:(NSInteger)index;
- (void)removeItem:(NSMenuItem*)item;
- (void)removeItemAtIndex:(NSInteger)index;
- (void)removeAllItems;
- (NSInteger)numberOfItems;
- (NSArray*)itemArray;
- (NSMenuItem*)itemAtIndex:(NSInteger)index;
- (NSMenuItem*)itemWithTitle:(NSString*)title;
- (NSMenuItem*)itemWithTag:(NSInteger)tag;
- (NSInteger)indexOfItem:(NSMenuItem*)item; // -1 if it is none of the menu's
- (NSInteger)indexOfItemWithTitle:(NSString*)title;
- (NSMenu*)supermenu;

// With autoenabling (the default) update enables each item that has an action and no submenu
// exactly when something would take the action and its validateMenuItem:, if any, says YES.
- (BOOL)autoenablesItems;
- (void)setAutoenablesItems:(BOOL)flag;
- (void)update;

// Performs the enabled item whose key equivalent the event is, in this menu or one below it. The
// control key counts as the command key.
- (BOOL)performKeyEquivalent:(NSEvent*)event;
- (void)performActionForItemAtIndex:(NSInteger)index;
@end
