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
    NSUInteger _keyMask;
    NSMenu* _menu; // not retained
    NSMenu* _submenu;
    id _target; // not retained
    SEL _action;
    NSInteger _tag;
    NSInteger _state;
    id _representedObject;
    BOOL _enabled;
    BOOL _separator;
    BOOL _hidden;
}
+ (NSMenuItem*)separatorItem;
- (id)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key;
- (BOOL)isSeparatorItem;
- (NSMenu*)menu;
- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (BOOL)isEnabled; // YES
- (void)setEnabled:(BOOL)flag;
- (BOOL)isHidden;
- (void)setHidden:(BOOL)flag;
- (NSInteger)state;
- (void)setState:(NSInteger)state;
- (NSInteger)tag;
- (void)setTag:(NSInteger)tag;
- (id)target;
- (void)setTarget:(id)target;
- (SEL)action;
- (void)setAction:(SEL)action;
- (id)representedObject;
- (void)setRepresentedObject:(id)object;
- (NSMenu*)submenu;
- (void)setSubmenu:(NSMenu*)menu;
- (BOOL)hasSubmenu;
- (NSString*)keyEquivalent; // an upper case letter means Shift as well
- (void)setKeyEquivalent:(NSString*)key;
- (NSUInteger)keyEquivalentModifierMask; // the command key
- (void)setKeyEquivalentModifierMask:(NSUInteger)mask;
@end
