// Push buttons, check boxes and radio buttons. A click sends the action when the mouse goes up
// inside; Space does when the button has the focus, Return for the one with the key equivalent
// "\r". Radio buttons do not know each other: their target turns the others off.
#pragma once

#include <AppKit/NSButtonCell.h>
#include <AppKit/NSControl.h>

@class NSAttributedString;

@interface NSButton : NSControl {
  @private
    NSButtonType _givenType;
    BOOL _hasGivenType;
}
- (void)setButtonType:(NSButtonType)type;
- (NSBezelStyle)bezelStyle;
- (void)setBezelStyle:(NSBezelStyle)style;
- (BOOL)isBordered;
- (void)setBordered:(BOOL)flag;
- (NSString*)title;
- (void)setTitle:(NSString*)title;
- (NSAttributedString*)attributedTitle;
- (NSInteger)state;
- (void)setState:(NSInteger)state;
- (void)setNextState;
- (NSString*)keyEquivalent;
- (void)setKeyEquivalent:(NSString*)key;
@end
