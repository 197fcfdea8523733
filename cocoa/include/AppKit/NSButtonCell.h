// The cell of push buttons, check boxes and radio buttons.
#pragma once

#include <AppKit/NSActionCell.h>

@class NSAttributedString;

enum { NSSwitchButton = 3, NSRadioButton = 4, NSMomentaryPushInButton = 7 };
typedef NSUInteger NSButtonType;

enum { NSRoundedBezelStyle = 1 };
typedef NSUInteger NSBezelStyle;

@interface NSButtonCell : NSActionCell {
  @private
    NSButtonType _buttonType;
    NSBezelStyle _bezelStyle;
    NSString* _keyEquivalent;
}
// What a click does to the state: a switch toggles it, a radio button sets it to on, any other type
// leaves it. A new cell is momentary (push in).
- (void)setButtonType:(NSButtonType)type;
- (void)setBezelStyle:(NSBezelStyle)style; // any style but the rounded one has square corners
- (NSString*)keyEquivalent;
- (void)setKeyEquivalent:(NSString*)key;
- (NSAttributedString*)attributedTitle; // the title in the cell's font, colour and alignment
// The title and the mark; in front of the bezel.
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view;
@end
