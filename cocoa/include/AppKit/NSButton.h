// Push buttons, check boxes and radio buttons. A click sends the action when the mouse goes up
// inside; Space does when the button has the focus, Return for the one with the key equivalent
// "\r". Radio buttons do not know each other: their target turns the others off.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSControl.h>

@interface NSButton : NSControl
- (void)setButtonType:(NSButtonType)type;
- (void)setBezelStyle:(NSBezelStyle)style;
- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (NSInteger)state;
- (void)setState:(NSInteger)state;
- (void)setKeyEquivalent:(NSString*)key;
@end
