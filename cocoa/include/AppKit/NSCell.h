// What a control's view leaves to its cell: the value, how it is drawn, tracking the mouse.
#pragma once

#include <Foundation/Foundation.h>

@class NSEvent, NSFont, NSView;

enum { NSOffState = 0, NSOnState = 1 };

@interface NSCell : NSObject {
  @private
    NSString* _contents;
    NSFont* _font;
    NSView* _controlView; // not retained
    NSInteger _state;
    NSUInteger _alignment;
    BOOL _enabled;
    BOOL _highlighted;
    BOOL _bordered;
    BOOL _bezeled;
    BOOL _editable;
    BOOL _wraps;
    BOOL _sendsActionOnEndEditing;
}
- (id)init;
- (id)initTextCell:(NSString*)text;

// The control that the cell was last drawn in or set on.
- (NSView*)controlView;
- (void)setControlView:(NSView*)view;

// The value. A number is shown with the fewest digits that read back as the same float, in plain
// notation from 1e-5 to below 1e16 (0.1, 1000, 10000000) and with an exponent beyond.
- (NSString*)stringValue;
- (void)setStringValue:(NSString*)text;
- (void)setFloatValue:(float)value;
- (NSString*)title; // the string value, unless the cell has a title of its own
- (void)setTitle:(NSString*)title;

- (NSInteger)state;                // NSOffState
- (void)setState:(NSInteger)state; // 0 is off, all else on
- (NSInteger)nextState;            // the state after a click: here the same
- (void)setNextState;

- (BOOL)isEnabled; // YES
- (void)setEnabled:(BOOL)flag;
- (BOOL)isBordered;
- (void)setBordered:(BOOL)flag; // removes the bezel
- (BOOL)isBezeled;
- (void)setBezeled:(BOOL)flag; // removes the border
- (BOOL)isEditable;
- (void)setEditable:(BOOL)flag;
- (BOOL)wraps;
- (void)setWraps:(BOOL)flag;
- (NSUInteger)alignment;
- (void)setAlignment:(NSUInteger)alignment;
- (NSFont*)font;
- (void)setFont:(NSFont*)font;
- (void)setControlSize:(NSUInteger)size; // of no effect here: sizes are those of font and frame

// The action: only NSActionCell and its subclasses have one.
- (id)target;
- (SEL)action;
- (BOOL)isContinuous;            // whether it sends its action while the mouse is dragged: NO
- (BOOL)sendsActionOnEndEditing; // also when the focus leaves an edited text; YES for text fields
- (void)setSendsActionOnEndEditing:(BOOL)flag;
- (BOOL)acceptsFirstResponder; // whether it is enabled

- (BOOL)isHighlighted;
- (void)setHighlighted:(BOOL)flag;

// Drawing, in the coordinates of the view, whose focus is locked.
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view; // nothing: for subclasses
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view; // draws if it changes
@end

@interface NSCell (NSCellTracking)
// Tracking. The loop takes events until the mouse goes up or, unless untilMouseUp, leaves the
// rectangle. If the mouse went up inside, it sets the next state, sends the action and returns YES.
+ (BOOL)prefersTrackingUntilMouseUp; // NO
- (BOOL)trackMouse:(NSEvent*)event
            inRect:(NSRect)rect
            ofView:(NSView*)view
      untilMouseUp:(BOOL)untilUp;
- (BOOL)startTrackingAt:(NSPoint)start inView:(NSView*)view;
- (BOOL)continueTracking:(NSPoint)last at:(NSPoint)current inView:(NSView*)view;
- (void)stopTracking:(NSPoint)last at:(NSPoint)stop inView:(NSView*)view mouseIsUp:(BOOL)up;
@end
