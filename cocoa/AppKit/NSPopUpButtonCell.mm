#include <AppKit/NSPopUpButtonCell.h>

#include "Internal.h"
#include "MenuTracker.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSPopUpButtonCell
- (id)init {
    return [self initTextCell:@"" pullsDown:NO];
}
- (id)initTextCell:(NSString*)title {
    return [self initTextCell:title pullsDown:NO];
}

- (id)initTextCell:(NSString*)title pullsDown:(BOOL)__attribute__((unused))pullsDown {
    self = [super initTextCell:@""];
    if (!self) return nil;
    [self setAlignment:NSLeftTextAlignment];
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    [self setMenu:menu];
    [menu release];
    if ([title length]) [self addItemWithTitle:title];
    return self;
}

- (void)dealloc {
    [_menu setPopUpCell:nil];
    [_menu release];
    [super dealloc];
}

- (NSMenu*)menu {
    return _menu;
}

- (void)setMenu:(NSMenu*)menu {
    if (menu == _menu) return;
    [self selectItem:nil];
    [_menu setPopUpCell:nil];
    [_menu release];
    _menu = [menu retain];
    [_menu setPopUpCell:self];
    [self selectItemAtIndex:0];
}

// From the menu.

- (void)menuDidAddItem:(NSMenuItem*)item {
    if ([_menu numberOfItems] == 1) [self selectItem:item];
}
- (void)menuDidRemoveItem:(NSMenuItem*)item {
    if (item != _selectedItem) return;
    [item setState:NSOffState];
    _selectedItem = nil;
    [self selectItemAtIndex:0];
    [[self controlView] setNeedsDisplay:YES];
}
- (void)menuDidChangeItem:(NSMenuItem*)item {
    if (item == _selectedItem) [[self controlView] setNeedsDisplay:YES];
}
// The menu is retained, so this is its end together with the cell's hold on it.
- (void)menuIsGone {
    _selectedItem = nil;
    _menu = nil;
}

- (void)addItemWithTitle:(NSString*)title {
    [self insertItemWithTitle:title atIndex:[self numberOfItems]];
}
- (void)insertItemWithTitle:(NSString*)title atIndex:(NSInteger)index {
    const NSInteger same = [self indexOfItemWithTitle:title];
    if (same >= 0) {
        [self removeItemAtIndex:same];
        if (same < index) --index;
    }
    [_menu insertItemWithTitle:title action:0 keyEquivalent:@"" atIndex:index];
}
- (void)removeItemAtIndex:(NSInteger)index {
    [_menu removeItemAtIndex:index];
}
- (void)removeAllItems {
    [_menu removeAllItems];
}
- (NSInteger)numberOfItems {
    return [_menu numberOfItems];
}
- (NSArray*)itemArray {
    return [_menu itemArray];
}
- (NSArray*)itemTitles {
    NSMutableArray* titles = [NSMutableArray array];
    for (NSInteger i = 0; i < [self numberOfItems]; ++i)
        [titles addObject:[self itemTitleAtIndex:i]];
    return titles;
}
- (NSMenuItem*)itemAtIndex:(NSInteger)index {
    return [_menu itemAtIndex:index];
}
- (NSString*)itemTitleAtIndex:(NSInteger)index {
    return [[_menu itemAtIndex:index] title];
}
- (NSInteger)indexOfItemWithTitle:(NSString*)title {
    return [_menu indexOfItemWithTitle:title];
}

- (NSMenuItem*)selectedItem {
    return _selectedItem;
}
- (NSInteger)indexOfSelectedItem {
    return [_menu indexOfItem:_selectedItem];
}
- (NSString*)titleOfSelectedItem {
    return [_selectedItem title];
}

- (void)selectItem:(NSMenuItem*)item {
    if (item && [_menu indexOfItem:item] < 0) return;
    // The selected item has the check mark.
    [_selectedItem setState:NSOffState];
    _selectedItem = item;
    [_selectedItem setState:NSOnState];
    [[self controlView] setNeedsDisplay:YES];
}
- (void)selectItemAtIndex:(NSInteger)index {
    if (index < 0)
        [self selectItem:nil];
    else if (NSMenuItem* item = [_menu itemAtIndex:index])
        [self selectItem:item];
}
- (void)selectItemWithTitle:(NSString*)title {
    [self selectItemAtIndex:[self indexOfItemWithTitle:title]];
}

// The title that the cell shows is the selected item's.
- (NSString*)title {
    NSString* title = [_selectedItem title];
    return title ? title : @"";
}
- (NSString*)stringValue {
    return [self title];
}
- (void)setTitle:(NSString*)title {
    if ([self indexOfItemWithTitle:title] < 0) [self addItemWithTitle:title];
    [self selectItemWithTitle:title];
}

- (NSSize)cellSize {
    double width = 0;
    for (NSInteger i = 0; i < [self numberOfItems]; ++i)
        width = std::max(width, theme::measure([self itemTitleAtIndex:i], [self font]).width);
    return NSMakeSize(std::ceil(width) + 30, [super cellSize].height);
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)__attribute__((unused))view {
    NSColor* color = [self isEnabled] ? theme::text() : theme::dim_text();
    const NSRect text =
        NSMakeRect(NSMinX(frame) + 7, NSMinY(frame), NSWidth(frame) - 24, NSHeight(frame));
    theme::draw_line([self title], text, [self font], color, 0);
    const double x = NSMaxX(frame) - 16, y = NSMidY(frame);
    NSBezierPath* arrow = [NSBezierPath bezierPath];
    [arrow moveToPoint:NSMakePoint(x, y - 2.5)];
    [arrow lineToPoint:NSMakePoint(x + 9, y - 2.5)];
    [arrow lineToPoint:NSMakePoint(x + 4.5, y + 3)];
    [arrow closePath];
    [color setFill];
    [arrow fill];
}

// Choosing.

// Where the list is shown, on the screen: the selected row's middle lies on the frame's.
- (NSRect)listRectForFrame:(NSRect)frame inView:(NSView*)view {
    const NSRect base = [view convertRect:frame toView:nil];
    const double row = menu_item_top(_menu, std::max<NSInteger>(0, [self indexOfSelectedItem]));
    const double top = NSMidY(base) + theme::menu_row_height / 2 + row;
    const NSPoint wish = [[view window] convertBaseToScreen:NSMakePoint(NSMinX(base), top)];
    const double width = std::max(std::ceil(frame.size.width), menu_list_width(_menu));
    const double height = menu_list_height(_menu);
    const NSPoint corner = MenuTracker::on_screen(wish, width, height);
    return NSMakeRect(corner.x, corner.y - height, width, height);
}

- (void)choose:(NSMenuItem*)item from:(NSView*)view {
    if (!item || [item menu] != _menu) return;
    [self selectItem:item];
    if ([item action])
        [NSApp sendAction:[item action] to:[item target] from:item];
    else if ([view isKindOfClass:[NSControl class]])
        [(NSControl*)view sendAction:[self action] to:[self target]];
}

- (NSMenuItem*)runListWithFrame:(NSRect)frame
                         inView:(NSView*)view
                          start:(NSPoint)start
                        pressed:(bool)pressed {
    if ([_menu numberOfItems] == 0 || ![view window]) return nil;
    MenuTracker tracker;
    const NSRect list = [self listRectForFrame:frame inView:view];
    tracker.open(_menu, NSMakePoint(NSMinX(list), NSMaxY(list)), NSWidth(list),
                 [self indexOfSelectedItem]);
    return tracker.run(start, pressed);
}

- (void)performClickWithFrame:(NSRect)frame inView:(NSView*)view {
    if (![self isEnabled]) return;
    [self choose:[self runListWithFrame:frame inView:view start:NSZeroPoint pressed:false]
            from:view];
}

- (BOOL)trackMouse:(NSEvent*)event
            inRect:(NSRect)rect
            ofView:(NSView*)view
      untilMouseUp:(BOOL)__attribute__((unused))untilUp {
    const NSPoint start = [[view window] convertBaseToScreen:[event locationInWindow]];
    [self choose:[self runListWithFrame:rect inView:view start:start pressed:true] from:view];
    return YES;
}
@end
