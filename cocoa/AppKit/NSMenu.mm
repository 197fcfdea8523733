#include <AppKit/NSMenu.h>

#include "Internal.h"
#include "MenuBar.h"

@implementation NSMenu
- (id)init {
    return [self initWithTitle:@""];
}

- (id)initWithTitle:(NSString*)title {
    self = [super init];
    if (!self) return nil;
    _title = title ? [title copy] : @"";
    _items = [[NSMutableArray alloc] init];
    _autoenablesItems = YES;
    return self;
}

- (void)dealloc {
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        [item setMenu:nil];
    }
    [_popUpCell menuIsGone];
    [_items release];
    [_title release];
    [super dealloc];
}

- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    if (title == _title) return;
    [_title release];
    _title = title ? [title copy] : @"";
}
- (NSMenu*)supermenu {
    return _supermenu;
}
- (void)setSupermenu:(NSMenu*)menu {
    _supermenu = menu;
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
    return [self insertItemWithTitle:title
                              action:action
                       keyEquivalent:key
                             atIndex:[self numberOfItems]];
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

- (NSMenuItem*)insertItemWithTitle:(NSString*)title
                            action:(SEL)action
                     keyEquivalent:(NSString*)key
                           atIndex:(NSInteger)index {
    NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:title action:action keyEquivalent:key];
    [self insertItem:item atIndex:index];
    return [item autorelease];
}

- (void)removeItem:(NSMenuItem*)item {
    [self removeItemAtIndex:[self indexOfItem:item]];
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

- (void)removeAllItems {
    while ([self numberOfItems]) [self removeItemAtIndex:[self numberOfItems] - 1];
}
- (NSInteger)numberOfItems {
    return (NSInteger)[_items count];
}
- (NSArray*)itemArray {
    return [NSArray arrayWithArray:_items];
}
- (NSMenuItem*)itemAtIndex:(NSInteger)index {
    if (index < 0 || index >= [self numberOfItems]) return nil;
    return [_items objectAtIndex:(NSUInteger)index];
}
- (NSMenuItem*)itemWithTitle:(NSString*)title {
    return [self itemAtIndex:[self indexOfItemWithTitle:title]];
}
- (NSMenuItem*)itemWithTag:(NSInteger)tag {
    for (NSUInteger i = 0; i < [_items count]; ++i) {
        NSMenuItem* item = [_items objectAtIndex:i];
        if ([item tag] == tag) return item;
    }
    return nil;
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

- (BOOL)autoenablesItems {
    return _autoenablesItems;
}
- (void)setAutoenablesItems:(BOOL)flag {
    _autoenablesItems = !!flag;
}

- (void)update {
    if (!_autoenablesItems) return;
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

static const NSUInteger key_modifiers =
    NSShiftKeyMask | NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask;

static BOOL is_key_of(NSMenuItem* item, NSString* key, NSUInteger flags) {
    NSString* own = [item keyEquivalent];
    if ([own length] != 1 || [key length] != 1) return NO;
    NSUInteger mask = [item keyEquivalentModifierMask] & key_modifiers;
    unichar wanted = [own characterAtIndex:0], typed = [key characterAtIndex:0];
    if (wanted >= 'A' && wanted <= 'Z') {
        mask |= NSShiftKeyMask;
        wanted = (unichar)(wanted - 'A' + 'a');
    }
    if (typed >= 'A' && typed <= 'Z') typed = (unichar)(typed - 'A' + 'a');
    if (!(mask & NSControlKeyMask) && (flags & NSControlKeyMask))
        flags = (flags & ~(NSUInteger)NSControlKeyMask) | NSCommandKeyMask;
    // A sign that is itself typed with Shift does not ask for Shift again.
    const BOOL letter = typed >= 'a' && typed <= 'z';
    if (!letter && !(mask & NSShiftKeyMask)) flags &= ~(NSUInteger)NSShiftKeyMask;
    return wanted == typed && mask == (flags & key_modifiers);
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
