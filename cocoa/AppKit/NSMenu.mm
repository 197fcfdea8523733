#include "NSMenuPrivate.h"

#include "MenuBar.h"

#include <AppKit/NSApplication.h>

@implementation NSMenu
- (id)init {
    return [self initWithTitle:@""];
}

- (id)initWithTitle:(NSString*)title {
    self = [super init];
    if (!self) return nil;
    _title = [title copy];
    _items = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        [item setMenu:nil];
    }
    [_popUpCell menuWillBeFreed];
    [_items release];
    [_title release];
    [super dealloc];
}

- (NSString*)title {
    return _title;
}
- (void)setPopUpCell:(NSPopUpButtonCell*)cell {
    _popUpCell = cell;
}
- (void)itemChanged:(NSMenuItem*)item {
    [_popUpCell menuDidChangeItem:item];
    if (self == [NSApp mainMenu]) cocoa::redraw_menu_bar();
}

- (void)addItem:(NSMenuItem*)item {
    [self insertItem:item atIndex:[self numberOfItems]];
}
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    NSMenuItem* item = [[[NSMenuItem alloc] initWithTitle:title action:action
                                            keyEquivalent:key] autorelease];
    [self addItem:item];
    return item;
}

- (void)insertItem:(NSMenuItem*)item atIndex:(NSInteger)index {
    if (!item || index < 0 || index > [self numberOfItems]) return;
    if ([item menu])
        [NSException raise:NSInvalidArgumentException format:@"the item belongs to a menu already"];
    [_items insertObject:item atIndex:(NSUInteger)index];
    [item setMenu:self];
    [_popUpCell menuDidAddItem:item];
    [self itemChanged:item];
}

- (void)removeItemAtIndex:(NSInteger)index {
    NSMenuItem* item = [self itemAtIndex:index];
    if (!item) return;
    [[item retain] autorelease];
    [item setMenu:nil];
    [_items removeObjectAtIndex:(NSUInteger)index];
    [_popUpCell menuDidRemoveItem:item];
    [self itemChanged:nil];
}

- (NSInteger)numberOfItems {
    return (NSInteger)[_items count];
}
- (NSMenuItem*)itemAtIndex:(NSInteger)index {
    if (index < 0 || index >= [self numberOfItems]) return nil;
    return [_items objectAtIndex:(NSUInteger)index];
}
- (NSInteger)indexOfItem:(NSMenuItem*)item {
    const NSUInteger index = item ? [_items indexOfObjectIdenticalTo:item] : (NSUInteger)NSNotFound;
    return index == (NSUInteger)NSNotFound ? -1 : (NSInteger)index;
}
- (NSInteger)indexOfItemWithTitle:(NSString*)title {
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        if ([[item title] isEqualToString:title]) return (NSInteger)i;
    }
    return -1;
}

- (void)update {
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        if (![item action] || [item hasSubmenu]) continue;
        id target = [NSApp targetForAction:[item action] to:[item target] from:item];
        BOOL enabled = target != nil;
        if (enabled && [target respondsToSelector:@selector(validateMenuItem:)])
            enabled = [(id<NSMenuValidation>)target validateMenuItem:item];
        [item setEnabled:enabled];
    }
}

static BOOL is_key_of(NSMenuItem* item, NSString* key, NSUInteger flags) {
    NSString* own = [item keyEquivalent];
    if ([own length] != 1 || [key length] != 1) return NO;
    NSUInteger wanted_flags = NSCommandKeyMask;
    unichar wanted = [own characterAtIndex:0], typed = [key characterAtIndex:0];
    if (wanted >= 'A' && wanted <= 'Z') {
        wanted_flags |= NSShiftKeyMask;
        wanted = (unichar)(wanted - 'A' + 'a');
    }
    if (typed >= 'A' && typed <= 'Z') typed = (unichar)(typed - 'A' + 'a');
    flags &= NSShiftKeyMask | NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask;
    if (flags & NSControlKeyMask)
        flags = (flags & ~(NSUInteger)NSControlKeyMask) | NSCommandKeyMask;
    // A character that is typed with Shift needs no further Shift.
    const BOOL letter = typed >= 'a' && typed <= 'z';
    if (!letter) flags &= ~(NSUInteger)NSShiftKeyMask;
    return wanted == typed && flags == wanted_flags;
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    [self update];
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        if ([item hasSubmenu]) {
            if ([[item submenu] performKeyEquivalent:event]) return YES;
        } else if ([item isEnabled] &&
                   is_key_of(item, [event charactersIgnoringModifiers], [event modifierFlags])) {
            [self performActionForItemAtIndex:(NSInteger)i];
            return YES;
        }
    }
    return NO;
}

- (void)performActionForItemAtIndex:(NSInteger)index {
    NSMenuItem* item = [self itemAtIndex:index];
    if ([item isEnabled] && [item action])
        [NSApp sendAction:[item action] to:[item target] from:item];
}
@end
