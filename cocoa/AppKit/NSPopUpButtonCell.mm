#include <AppKit/NSPopUpButtonCell.h>

#include "MenuTracker.h"
#include "NSEventPrivate.h"
#include "NSMenuPrivate.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSPopUpButtonCell
- (id)initTextCell:(NSString*)__attribute__((unused))title {
    self = [super initTextCell:@""];
    if (!self) return nil;
    [self setAlignment:NSLeftTextAlignment];
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    [self setMenu:menu];
    [menu release];
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
- (void)menuWillBeFreed {
    _selectedItem = nil;
    _menu = nil;
}

- (void)addItemWithTitle:(NSString*)title {
    [_menu removeItemAtIndex:[_menu indexOfItemWithTitle:title]];
    [_menu addItemWithTitle:title action:0 keyEquivalent:@""];
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
// The title is the selected item's.
- (NSString*)title {
    NSString* title = [_selectedItem title];
    return title ? title : @"";
}
- (NSString*)stringValue {
    return [self title];
}
- (void)setTitle:(NSString*)title {
    if ([_menu indexOfItemWithTitle:title] < 0) [self addItemWithTitle:title];
    [self selectItemAtIndex:[_menu indexOfItemWithTitle:title]];
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)__attribute__((unused))view {
    NSColor* color = [self isEnabled] ? theme::text() : theme::dim_text();
    const NSRect text =
        NSMakeRect(NSMinX(frame) + 7, NSMinY(frame), NSWidth(frame) - 24, NSHeight(frame));
    theme::draw_line([self title], text, [self font], color, NSLeftTextAlignment);
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
    // The middle of the selected row is over the frame's.
    const NSInteger selected = [self indexOfSelectedItem];
    const NSRect base = [view convertRect:frame toView:nil];
    const double top = NSMidY(base) + theme::menu_row_height / 2 +
                       menu_item_top(_menu, std::max<NSInteger>(0, selected));
    MenuTracker tracker;
    tracker.open(_menu, [[view window] convertBaseToScreen:NSMakePoint(NSMinX(base), top)],
                 frame.size.width, selected);
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
    const NSPoint start = [event locationOnScreen];
    [self choose:[self runListWithFrame:rect inView:view start:start pressed:true] from:view];
    return YES;
}
@end
