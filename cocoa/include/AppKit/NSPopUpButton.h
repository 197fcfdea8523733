// A button that shows one item of a list and opens the list on a click, on Space and on the up and
// down arrows. The mouse chooses by drag and release or by two clicks; in the open list the arrows
// move, Return and Space choose, Escape closes.
#pragma once

#include <AppKit/NSButton.h>
#include <AppKit/NSPopUpButtonCell.h>

@interface NSPopUpButton : NSButton
- (id)initWithFrame:(NSRect)frame pullsDown:(BOOL)pullsDown; // there are no pull-downs: NO
- (NSMenu*)menu;
- (void)setMenu:(NSMenu*)menu;
- (void)addItemWithTitle:(NSString*)title;
- (NSInteger)indexOfSelectedItem;
- (NSString*)titleOfSelectedItem;
- (void)selectItemAtIndex:(NSInteger)index;
@end
