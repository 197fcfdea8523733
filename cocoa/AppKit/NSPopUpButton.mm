#include <AppKit/NSPopUpButton.h>

#include "Internal.h"

#include <AppKit/NSEvent.h>

@implementation NSPopUpButton
+ (Class)cellClass {
    return [NSPopUpButtonCell class];
}
- (id)initWithFrame:(NSRect)frame pullsDown:(BOOL)__attribute__((unused))pullsDown {
    return [self initWithFrame:frame];
}

- (NSPopUpButtonCell*)popUpCell {
    return (NSPopUpButtonCell*)[self cell];
}

- (NSMenu*)menu {
    return [[self popUpCell] menu];
}
- (void)setMenu:(NSMenu*)menu {
    [[self popUpCell] setMenu:menu];
}
- (void)addItemWithTitle:(NSString*)title {
    [[self popUpCell] addItemWithTitle:title];
}
- (void)insertItemWithTitle:(NSString*)title atIndex:(NSInteger)index {
    [[self popUpCell] insertItemWithTitle:title atIndex:index];
}
- (void)removeItemAtIndex:(NSInteger)index {
    [[self popUpCell] removeItemAtIndex:index];
}
- (void)removeAllItems {
    [[self popUpCell] removeAllItems];
}
- (NSInteger)numberOfItems {
    return [[self popUpCell] numberOfItems];
}
- (NSArray*)itemArray {
    return [[self popUpCell] itemArray];
}
- (NSArray*)itemTitles {
    return [[self popUpCell] itemTitles];
}
- (NSMenuItem*)itemAtIndex:(NSInteger)index {
    return [[self popUpCell] itemAtIndex:index];
}
- (NSString*)itemTitleAtIndex:(NSInteger)index {
    return [[self popUpCell] itemTitleAtIndex:index];
}
- (NSInteger)indexOfItemWithTitle:(NSString*)title {
    return [[self popUpCell] indexOfItemWithTitle:title];
}
- (NSMenuItem*)selectedItem {
    return [[self popUpCell] selectedItem];
}
- (NSInteger)indexOfSelectedItem {
    return [[self popUpCell] indexOfSelectedItem];
}
- (NSString*)titleOfSelectedItem {
    return [[self popUpCell] titleOfSelectedItem];
}
- (void)selectItem:(NSMenuItem*)item {
    [[self popUpCell] selectItem:item];
}
- (void)selectItemAtIndex:(NSInteger)index {
    [[self popUpCell] selectItemAtIndex:index];
}
- (void)selectItemWithTitle:(NSString*)title {
    [[self popUpCell] selectItemWithTitle:title];
}

// A click, by whatever means, opens the list.
- (void)performClick:(id)__attribute__((unused))sender {
    [[self retain] autorelease];
    id cell = [[[self cell] retain] autorelease];
    [cell performClickWithFrame:[self bounds] inView:self];
}

- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    if (key == NSUpArrowFunctionKey || key == NSDownArrowFunctionKey)
        [self performClick:self];
    else
        [super keyDown:event];
}
@end
