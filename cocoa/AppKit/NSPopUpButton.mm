#include <AppKit/NSPopUpButton.h>

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
- (NSInteger)indexOfSelectedItem {
    return [[self popUpCell] indexOfSelectedItem];
}
- (NSString*)titleOfSelectedItem {
    return [[self popUpCell] titleOfSelectedItem];
}
- (void)selectItemAtIndex:(NSInteger)index {
    [[self popUpCell] selectItemAtIndex:index];
}

// Any kind of click opens the list.
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
