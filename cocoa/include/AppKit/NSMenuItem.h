// One entry of a menu.
#pragma once

#include <Foundation/Foundation.h>

@class NSMenu, NSMenuItem;

@protocol NSMenuValidation
- (BOOL)validateMenuItem:(NSMenuItem*)item;
@end

@interface NSMenuItem : NSObject {
  @private
    NSString* _title;
    NSString* _keyEquivalent;
    NSMenu* _menu; // not retained
    NSMenu* _submenu;
    id _target; // not retained
    SEL _action;
    NSInteger _tag;
    NSInteger _state;
    BOOL _enabled;
    BOOL _separator;
}
+ (NSMenuItem*)separatorItem;
- (id)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key;
- (BOOL)isSeparatorItem;
- (NSMenu*)menu;
- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (BOOL)isEnabled; // YES
- (void)setEnabled:(BOOL)flag;
- (NSInteger)state;
- (void)setState:(NSInteger)state;
- (NSInteger)tag;
- (void)setTag:(NSInteger)tag;
- (id)target;
- (void)setTarget:(id)target;
- (SEL)action;
- (NSMenu*)submenu;
- (void)setSubmenu:(NSMenu*)menu;
- (BOOL)hasSubmenu;
- (NSString*)keyEquivalent; // typed with the command key; an upper case letter means Shift as well
@end
