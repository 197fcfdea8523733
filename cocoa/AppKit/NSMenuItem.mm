#include "NSMenuPrivate.h"
#include "Setters.h"

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
    cocoa::set_copied(_title, title);
    cocoa::set_copied(_keyEquivalent, key);
    _action = action;
    _enabled = YES;
    return self;
}

- (void)dealloc {
    [_submenu release];
    [_title release];
    [_keyEquivalent release];
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
}
- (NSString*)title {
    return _title;
}
- (void)setTitle:(NSString*)title {
    cocoa::set_copied(_title, title);
    [_menu itemChanged:self];
}
- (BOOL)isEnabled {
    return _enabled;
}
- (void)setEnabled:(BOOL)flag {
    _enabled = flag && !_separator;
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
- (NSMenu*)submenu {
    return _submenu;
}
- (void)setSubmenu:(NSMenu*)menu {
    cocoa::set_retained(_submenu, menu);
}
- (BOOL)hasSubmenu {
    return _submenu != nil;
}
- (NSString*)keyEquivalent {
    return _keyEquivalent;
}
@end
