// What a control shows and how it takes the mouse, apart from the view: a value, a look, tracking.
#pragma once

#include <Foundation/Foundation.h>

@class NSAttributedString, NSEvent, NSFont, NSText, NSView;

enum { NSMixedState = -1, NSOffState = 0, NSOnState = 1 };
typedef NSInteger NSCellStateValue;

enum { NSRegularControlSize = 0, NSSmallControlSize = 1, NSMiniControlSize = 2 };
typedef NSUInteger NSControlSize;

enum { NSNullCellType = 0, NSTextCellType = 1 };
typedef NSUInteger NSCellType;

@interface NSCell : NSObject {
  @private
    NSString* _contents;
    NSFont* _font;
    NSView* _controlView; // not retained
    NSInteger _state;
    NSInteger _tag;
    NSControlSize _controlSize;
    NSUInteger _alignment;
    NSCellType _type;
    BOOL _enabled;
    BOOL _highlighted;
    BOOL _bordered;
    BOOL _bezeled;
    BOOL _editable;
    BOOL _selectable;
    BOOL _continuous;
    BOOL _wraps;
    BOOL _sendsActionOnEndEditing;
    BOOL _refusesFirstResponder;
}
- (id)init; // a cell without a text
- (id)initTextCell:(NSString*)text;
- (NSCellType)type;

// The control that the cell was drawn in or given to last.
- (NSView*)controlView;
- (void)setControlView:(NSView*)view;

// The value. A number is shown with the fewest digits that read back as the same float or double,
// in plain notation from 1e-5 to below 1e16 (0.1, 1000, 10000000) and with an exponent beyond. A
// text's number is what it begins with, 0 if that is none.
- (NSString*)stringValue;
- (void)setStringValue:(NSString*)text;
- (float)floatValue;
- (void)setFloatValue:(float)value;
- (double)doubleValue;
- (void)setDoubleValue:(double)value;
- (int)intValue;
- (void)setIntValue:(int)value;
- (NSInteger)integerValue;
- (void)setIntegerValue:(NSInteger)value;
- (NSString*)title; // the string value, unless the cell has a title of its own
- (void)setTitle:(NSString*)title;

- (NSInteger)state;                // NSOffState
- (void)setState:(NSInteger)state; // 0 is off, all else on
- (NSInteger)nextState;
- (void)setNextState;

- (BOOL)isEnabled; // YES
- (void)setEnabled:(BOOL)flag;
- (BOOL)isBordered;
- (void)setBordered:(BOOL)flag; // takes the bezel away
- (BOOL)isBezeled;
- (void)setBezeled:(BOOL)flag; // takes the border away
- (BOOL)isEditable;
- (void)setEditable:(BOOL)flag; // an editable text is selectable too
- (BOOL)isSelectable;
- (void)setSelectable:(BOOL)flag; // a text that is not selectable is not editable
- (BOOL)wraps;
- (void)setWraps:(BOOL)flag;
- (NSUInteger)alignment;
- (void)setAlignment:(NSUInteger)alignment;
- (NSFont*)font;
- (void)setFont:(NSFont*)font;
- (NSControlSize)controlSize;
- (void)setControlSize:(NSControlSize)size;
- (NSInteger)tag;
- (void)setTag:(NSInteger)tag;

// The action: only NSActionCell and its subclasses can have one.
- (id)target;
- (SEL)action;
- (BOOL)isContinuous; // sends its action while the mouse is dragged
- (void)setContinuous:(BOOL)flag;
- (BOOL)sendsActionOnEndEditing; // YES for text fields: also when the focus leaves an edited text
- (void)setSendsActionOnEndEditing:(BOOL)flag;
- (BOOL)refusesFirstResponder;
- (void)setRefusesFirstResponder:(BOOL)flag;
- (BOOL)acceptsFirstResponder; // enabled and not refusing

- (BOOL)isHighlighted;
- (void)setHighlighted:(BOOL)flag;
@end

@interface NSCell (NSCellDrawing)
// Drawing, in the coordinates of the view, whose focus is locked.
- (NSSize)cellSize; // what the contents need
- (NSRect)drawingRectForBounds:(NSRect)bounds;
- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view;
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view;
- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view; // draws if it changes
@end

@interface NSCell (NSCellTracking)
// Tracking. The loop takes events until the mouse goes up or, unless untilMouseUp, leaves the
// rectangle; it answers YES if the mouse went up inside. Then the state has changed to the next and
// the action was sent.
+ (BOOL)prefersTrackingUntilMouseUp; // NO
- (BOOL)trackMouse:(NSEvent*)event
            inRect:(NSRect)rect
            ofView:(NSView*)view
      untilMouseUp:(BOOL)untilUp;
- (BOOL)startTrackingAt:(NSPoint)start inView:(NSView*)view;
- (BOOL)continueTracking:(NSPoint)last at:(NSPoint)current inView:(NSView*)view;
- (void)stopTracking:(NSPoint)last at:(NSPoint)stop inView:(NSView*)view mouseIsUp:(BOOL)up;
@end
