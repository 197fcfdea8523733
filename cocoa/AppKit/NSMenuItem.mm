#include <AppKit/NSMenuItem.h>

#include "Internal.h"

@implementation NSMenuItem
+ (NSMenuItem*)separatorItem {
    NSMenuItem* item = [[[self alloc] initWithTitle:@"" action:0 keyEquivalent:@""] autorelease];
    item->_separator = YES;
    item->_enabled = NO;
    return item;
}

- (id)init {
    return [self initWithTitle:@"" action:0 keyEquivalent:@""];
}

- (id)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    self = [super init];
    if (!self) return nil;
    _title = title ? [title copy] : @"";
    _keyEquivalent = key ? [key copy] : @"";
    _keyMask = NSCommandKeyMask;
    _action = action;
    _enabled = YES;
    return self;
}

- (void)dealloc {
    [_submenu setSupermenu:nil];
    [_submenu release];
    [_title release];
    [_keyEquivalent release];
    [_representedObject release];
    [super dealloc];
}

- (BOOL)isSeparatorItem {
    return _separator;
}
- (NSMenu*)menu {
    return _menu;
}
- (void)setMenu:(NSMenu*)menu {
    _menu = menu;
    [_submenu setSupermenu:menu];
}
- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    if (title == _title) return;
    [_title release];
    _title = title ? [title copy] : @"";
    [_menu itemChanged:self];
}
- (BOOL)isEnabled {
    return _enabled;
}
- (void)setEnabled:(BOOL)flag {
    _enabled = flag && !_separator;
}
- (BOOL)isHidden {
    return _hidden;
}
- (void)setHidden:(BOOL)flag {
    _hidden = !!flag;
    [_menu itemChanged:self];
}
- (NSInteger)state {
    return _state;
}
- (void)setState:(NSInteger)state {
    _state = state;
}
- (NSInteger)tag {
    return _tag;
}
- (void)setTag:(NSInteger)tag {
    _tag = tag;
}
- (id)target {
    return _target;
}
- (void)setTarget:(id)target {
    _target = target;
}
- (SEL)action {
    return _action;
}
- (void)setAction:(SEL)action {
    _action = action;
}
- (id)representedObject {
    return _representedObject;
}
- (void)setRepresentedObject:(id)object {
    if (object == _representedObject) return;
    [_representedObject release];
    _representedObject = [object retain];
}
- (NSMenu*)submenu {
    return _submenu;
}
- (void)setSubmenu:(NSMenu*)menu {
    if (menu == _submenu) return;
    [_submenu setSupermenu:nil];
    [_submenu release];
    _submenu = [menu retain];
    [_submenu setSupermenu:_menu];
}
- (BOOL)hasSubmenu {
    return _submenu != nil;
}
- (NSString*)keyEquivalent {
    return _keyEquivalent;
}
- (void)setKeyEquivalent:(NSString*)key {
    if (key == _keyEquivalent) return;
    [_keyEquivalent release];
    _keyEquivalent = key ? [key copy] : @"";
}
- (NSUInteger)keyEquivalentModifierMask {
    return _keyMask;
}
- (void)setKeyEquivalentModifierMask:(NSUInteger)mask {
    _keyMask = mask;
}
@end
