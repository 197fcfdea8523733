#include "NSMenuListView.h"

#include "MenuTracker.h"
#include "Theme.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

namespace cocoa {

static const double list_padding = 4;

static double row_height(NSMenuItem* item) {
    return [item isSeparatorItem] ? theme::menu_separator_height : theme::menu_row_height;
}

double menu_item_top(NSMenu* menu, NSInteger index) {
    double top = list_padding;
    for (NSInteger i = 0; i < index && i < [menu numberOfItems]; ++i)
        top += row_height([menu itemAtIndex:i]);
    return top;
}

double menu_list_height(NSMenu* menu) {
    return menu_item_top(menu, [menu numberOfItems]) + list_padding;
}

// A key equivalent as menus show it: the modifiers' names and the key in upper case.
static NSString* key_text(NSMenuItem* item) {
    NSString* key = [item keyEquivalent];
    if ([key length] != 1) return @"";
    unichar character = [key characterAtIndex:0];
    const bool shift = character >= 'A' && character <= 'Z';
    if (character >= 'a' && character <= 'z') character = (unichar)(character - 'a' + 'A');
    NSString* name = [NSString stringWithCharacters:&character length:1];
    if (character == NSDeleteCharacter || character == 0x08) name = @"Backspace";
    if (character == NSDeleteFunctionKey) name = @"Delete";
    if (character == '\r') name = @"Return";
    if (character == ' ') name = @"Space";
    return [shift ? @"Ctrl+Shift+" : @"Ctrl+" stringByAppendingString:name];
}

double menu_list_width(NSMenu* menu) {
    double width = 60;
    for (NSInteger i = 0; i < [menu numberOfItems]; ++i) {
        NSMenuItem* item = [menu itemAtIndex:i];
        double row = 22 + theme::measure([item title], theme::menu_font()).width + 16;
        NSString* key = key_text(item);
        if ([key length]) row += 20 + theme::measure(key, theme::menu_font()).width;
        if ([item hasSubmenu]) row += 14;
        width = std::max(width, row);
    }
    return std::ceil(width);
}

} // namespace cocoa

using namespace cocoa;

@implementation NSMenuListView
- (id)initWithMenu:(NSMenu*)menu frame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _menu = [menu retain];
    _highlighted = -1;
    return self;
}
- (void)dealloc {
    [_menu release];
    [super dealloc];
}

- (BOOL)isFlipped {
    return YES;
}
- (NSInteger)highlightedItem {
    return _highlighted;
}
- (void)setHighlightedItem:(NSInteger)index {
    if (index == _highlighted) return;
    _highlighted = index;
    [self setNeedsDisplay:YES];
}

- (NSRect)rectOfItem:(NSInteger)index {
    NSMenuItem* item = [_menu itemAtIndex:index];
    return NSMakeRect(0, menu_item_top(_menu, index), [self bounds].size.width, row_height(item));
}

- (NSInteger)itemAtPoint:(NSPoint)point {
    for (NSInteger i = 0; i < [_menu numberOfItems]; ++i)
        if (NSPointInRect(point, [self rectOfItem:i])) return i;
    return -1;
}

- (void)drawSubmenuArrow:(NSRect)row color:(NSColor*)color {
    const double x = NSMaxX(row) - 14, y = NSMidY(row);
    NSBezierPath* arrow = [NSBezierPath bezierPath];
    [arrow moveToPoint:NSMakePoint(x, y - 4)];
    [arrow lineToPoint:NSMakePoint(x, y + 4)];
    [arrow lineToPoint:NSMakePoint(x + 5, y)];
    [arrow closePath];
    [color setFill];
    [arrow fill];
}

- (void)drawCheck:(NSRect)row color:(NSColor*)color {
    NSBezierPath* tick = [NSBezierPath bezierPath];
    const double x = NSMinX(row) + 8, y = NSMidY(row);
    [tick moveToPoint:NSMakePoint(x, y)];
    [tick lineToPoint:NSMakePoint(x + 3, y + 3)];
    [tick lineToPoint:NSMakePoint(x + 8, y - 4)];
    [tick setLineWidth:1.5];
    [color setStroke];
    [tick stroke];
}

- (void)drawRow:(NSInteger)index {
    NSMenuItem* item = [_menu itemAtIndex:index];
    const NSRect row = [self rectOfItem:index];
    if ([item isSeparatorItem]) {
        [theme::separator() setFill];
        NSRectFill(NSMakeRect(NSMinX(row) + 8, std::floor(NSMidY(row)), NSWidth(row) - 16, 1));
        return;
    }
    const BOOL lit = index == _highlighted && [item isEnabled];
    if (lit) {
        [theme::accent() setFill];
        NSRectFill(NSInsetRect(row, 1, 0));
    }
    NSColor* color = [item isEnabled] ? theme::text() : theme::dim_text();
    if (lit) color = theme::accent_text();
    if ([item state] != NSOffState) [self drawCheck:row color:color];
    const NSRect text = NSMakeRect(NSMinX(row) + 22, NSMinY(row), NSWidth(row) - 36, NSHeight(row));
    theme::draw_line([item title], text, theme::menu_font(), color, NSLeftTextAlignment);
    theme::draw_line(key_text(item), text, theme::menu_font(), color, NSRightTextAlignment);
    if ([item hasSubmenu]) [self drawSubmenuArrow:row color:color];
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    theme::draw_round([self bounds], 4, theme::menu(), theme::outline());
    for (NSInteger i = 0; i < [_menu numberOfItems]; ++i) [self drawRow:i];
}
@end
