// The cell of push buttons, check boxes and radio buttons.
#pragma once

#include <AppKit/NSActionCell.h>

enum {
    NSMomentaryLightButton = 0,
    NSPushOnPushOffButton = 1,
    NSToggleButton = 2,
    NSSwitchButton = 3,
    NSRadioButton = 4,
    NSMomentaryChangeButton = 5,
    NSOnOffButton = 6,
    NSMomentaryPushInButton = 7
};
typedef NSUInteger NSButtonType;

enum {
    NSRoundedBezelStyle = 1,
    NSRegularSquareBezelStyle = 2,
    NSShadowlessSquareBezelStyle = 6,
    NSSmallSquareBezelStyle = 12
};
typedef NSUInteger NSBezelStyle;

@interface NSButtonCell : NSActionCell {
  @private
    NSButtonType _buttonType;
    NSBezelStyle _bezelStyle;
    NSString* _keyEquivalent;
}
// What a click does to the state: nothing for the momentary types, the other of on and off for
// push-on-push-off, toggle, on-off and switch; a radio button's goes on and stays on. A new cell is
// momentary (push in).
- (void)setButtonType:(NSButtonType)type;
- (NSBezelStyle)bezelStyle;
- (void)setBezelStyle:(NSBezelStyle)style;
- (NSString*)keyEquivalent;
- (void)setKeyEquivalent:(NSString*)key;
- (NSAttributedString*)attributedTitle; // the title in the cell's font and colour, centred
@end
