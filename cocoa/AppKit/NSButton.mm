// Push buttons, check boxes and radio buttons, and their cell.
#include "NSButtonPrivate.h"

#include "Setters.h"
#include "Theme.h"

#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSButtonCell
- (id)init {
    return [self initTextCell:@"Button"];
}

- (id)initTextCell:(NSString*)text {
    self = [super initTextCell:text];
    if (!self) return nil;
    _buttonType = NSMomentaryPushInButton;
    _bezelStyle = NSRoundedBezelStyle;
    _keyEquivalent = @"";
    [self setBordered:YES];
    [self setAlignment:NSCenterTextAlignment];
    return self;
}

- (void)dealloc {
    [_keyEquivalent release];
    [super dealloc];
}

- (NSButtonType)buttonType {
    return _buttonType;
}
- (BOOL)isMarked {
    return _buttonType == NSSwitchButton || _buttonType == NSRadioButton;
}
- (void)setButtonType:(NSButtonType)type {
    _buttonType = type;
    if ([self isMarked]) {
        [self setBordered:NO];
        [self setAlignment:NSLeftTextAlignment];
    }
    [[self controlView] setNeedsDisplay:YES];
}
- (void)setBezelStyle:(NSBezelStyle)style {
    _bezelStyle = style;
    [[self controlView] setNeedsDisplay:YES];
}
- (NSString*)keyEquivalent {
    return _keyEquivalent;
}
- (void)setKeyEquivalent:(NSString*)key {
    set_copied(_keyEquivalent, key);
    [[self controlView] setNeedsDisplay:YES];
}

// The number of a button is its state.
- (void)setFloatValue:(float)value {
    [self setState:value != 0];
}

- (NSInteger)nextState {
    switch (_buttonType) {
    case NSSwitchButton:
        return [self state] == NSOffState ? NSOnState : NSOffState;
    case NSRadioButton:
        return NSOnState;
    default:
        return [self state];
    }
}

- (NSAttributedString*)attributedTitle {
    NSMutableParagraphStyle* style =
        [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [style setAlignment:[self alignment]];
    NSColor* color = [self isEnabled] ? theme::text() : theme::dim_text();
    NSDictionary* attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:[self font], NSFontAttributeName, color,
                                                   NSForegroundColorAttributeName, style,
                                                   NSParagraphStyleAttributeName, nil];
    return [[[NSAttributedString alloc] initWithString:[self title]
                                            attributes:attributes] autorelease];
}

- (void)drawMark:(NSRect)box {
    const BOOL on = [self state] == NSOnState, round = _buttonType == NSRadioButton;
    NSColor* fill = on ? theme::accent() : theme::field();
    if (![self isEnabled]) fill = theme::button();
    theme::draw_round(box, round ? 6 : 2, [self isHighlighted] ? theme::button_pressed() : fill,
                      theme::field_outline());
    if (!on) return;
    NSColor* mark = [self isEnabled] ? theme::accent_text() : theme::dim_text();
    [mark set];
    if (round) {
        [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect(box, 4, 4)] fill];
        return;
    }
    NSBezierPath* tick = [NSBezierPath bezierPath];
    [tick moveToPoint:NSMakePoint(NSMinX(box) + 3, NSMinY(box) + 6.5)];
    [tick lineToPoint:NSMakePoint(NSMinX(box) + 5.2, NSMinY(box) + 9)];
    [tick lineToPoint:NSMakePoint(NSMinX(box) + 9.2, NSMinY(box) + 3)];
    [tick setLineWidth:1.6];
    [tick stroke];
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    [self setControlView:view];
    if ([self isBordered]) {
        const BOOL pressed = [self isHighlighted];
        const BOOL is_default = [_keyEquivalent isEqualToString:@"\r"];
        NSColor* face = is_default ? theme::accent() : theme::button();
        if (pressed) face = is_default ? theme::title_bar(true) : theme::button_pressed();
        if (![self isEnabled]) face = theme::title_bar(true);
        theme::draw_round(frame, _bezelStyle == NSRoundedBezelStyle ? 4 : 1, face,
                          theme::button_outline());
    }
    [self drawInteriorWithFrame:frame inView:view];
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)__attribute__((unused))view {
    NSColor* color = [self isEnabled] ? theme::text() : theme::dim_text();
    if ([self isEnabled] && [_keyEquivalent isEqualToString:@"\r"]) color = theme::accent_text();
    NSRect text = NSInsetRect(frame, 3, 0);
    if ([self isMarked]) {
        const NSRect box = NSMakeRect(NSMinX(frame) + 2, std::floor(NSMidY(frame) - 6), 12, 12);
        [self drawMark:box];
        text = NSMakeRect(NSMinX(frame) + 20, NSMinY(frame), NSWidth(frame) - 20, NSHeight(frame));
    }
    theme::draw_line([self title], text, [self font], color, [self alignment]);
}
@end

@implementation NSButton
+ (Class)cellClass {
    return [NSButtonCell class];
}

- (void)setButtonType:(NSButtonType)type {
    [(NSButtonCell*)[self cell] setButtonType:type];
}
- (void)setBezelStyle:(NSBezelStyle)style {
    [(NSButtonCell*)[self cell] setBezelStyle:style];
}
- (NSString*)title {
    return [(NSButtonCell*)[self cell] title];
}
- (void)setTitle:(NSString*)title {
    [(NSButtonCell*)[self cell] setTitle:title];
}
- (NSInteger)state {
    return [(NSButtonCell*)[self cell] state];
}
- (void)setState:(NSInteger)state {
    [(NSButtonCell*)[self cell] setState:state];
}
- (void)setKeyEquivalent:(NSString*)key {
    [(NSButtonCell*)[self cell] setKeyEquivalent:key];
}

// The radio buttons of one view that send the same action to the same target are a group.
- (void)chooseRadioBeside:(NSInteger)direction {
    NSArray* siblings = [[self superview] subviews];
    const NSInteger count = (NSInteger)[siblings count];
    NSInteger at = (NSInteger)[siblings indexOfObjectIdenticalTo:self];
    for (NSInteger tries = 1; tries < count; ++tries) {
        at = (at + direction + count) % count;
        NSButton* other = [siblings objectAtIndex:(NSUInteger)at];
        if (![other isKindOfClass:[NSButton class]] || ![other canBecomeKeyView]) continue;
        if ([(NSButtonCell*)[other cell] buttonType] != NSRadioButton) continue;
        if ([other action] != [self action] || [other target] != [self target]) continue;
        [[self window] makeFirstResponder:other];
        [other performClick:other];
        return;
    }
}

// Space presses any button. The arrows choose within a group of radio buttons; Return presses a
// push button that has the focus, unless the window has a default button.
- (void)keyDown:(NSEvent*)event {
    NSString* characters = [event characters];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    const NSButtonType type = [(NSButtonCell*)[self cell] buttonType];
    const BOOL back = key == NSUpArrowFunctionKey || key == NSLeftArrowFunctionKey;
    const BOOL forward = key == NSDownArrowFunctionKey || key == NSRightArrowFunctionKey;
    if (type == NSRadioButton && (back || forward)) {
        [self chooseRadioBeside:back ? -1 : 1];
    } else if (key == NSCarriageReturnCharacter && type != NSRadioButton &&
               type != NSSwitchButton && ![[self window] performKeyEquivalent:event]) {
        [self performClick:self];
    } else {
        [super keyDown:event];
    }
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    NSString* key = [(NSButtonCell*)[self cell] keyEquivalent];
    if ([key length] && [self isEnabled] &&
        [key isEqualToString:[event charactersIgnoringModifiers]]) {
        [self performClick:self];
        return YES;
    }
    return [super performKeyEquivalent:event];
}
@end
