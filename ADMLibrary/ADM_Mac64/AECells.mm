#include "ADMLibrary/ADM_Mac64/AECells.h"

#include "ADMLibrary/ADM_Mac64/AEButton.h"
#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AppKitValues.h"

namespace {

constexpr CGFloat kBoxSize = 12;
constexpr CGFloat kBoxLineHeight = 16; // the box is centred as if it were this high
constexpr CGFloat kCircleSize = 10;
constexpr CGFloat kDotInset = 3;
constexpr CGFloat kTitleIndent = 7;

int button_state(NSCell* cell, AEButtonState enabled_look) {
    return [cell isEnabled] ? enabled_look : kAEButtonDisabled;
}

// An open tick that extends beyond the box at the upper right.
void draw_tick(CGFloat box_x, CGFloat box_y) {
    NSBezierPath* tick = [NSBezierPath bezierPath];
    [tick moveToPoint:NSMakePoint(box_x + 4, box_y + 4)];
    [tick lineToPoint:NSMakePoint(box_x + 6, box_y + 8)];
    [tick lineToPoint:NSMakePoint(box_x + 16, box_y - 4)];
    [tick stroke];
}

void draw_check_box(NSCell* cell, NSRect frame, AEButtonState enabled_look) {
    const CGFloat x = frame.origin.x + (frame.size.width - kBoxSize) / 2;
    const CGFloat y = frame.origin.y + (frame.size.height - kBoxLineHeight) / 2;
    DrawAEButton(NSMakeRect(x, y, kBoxSize, kBoxSize), nil, button_state(cell, enabled_look));
    if ([cell state] != 1) return;
    [GetAEColor([cell isEnabled] ? kAEButtonText : kAEDisabledText) setStroke];
    draw_tick(x, y);
}

// In the square at the right end of the pop-up, pointing down.
void draw_arrow(NSRect frame, CGFloat left) {
    const CGFloat y = frame.origin.y;
    const CGFloat h = frame.size.height;
    NSBezierPath* arrow = [NSBezierPath bezierPath];
    [arrow moveToPoint:NSMakePoint(left + 6, y + 7)];
    [arrow lineToPoint:NSMakePoint(left + h - 6, y + 7)];
    [arrow lineToPoint:NSMakePoint(left + h / 2, y + h - 7)];
    [arrow closePath];
    [arrow fill];
}

} // namespace

@implementation AEButtonCell

- (id)init {
    return [super init];
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)view;
    DrawAEButton(frame, [[self attributedTitle] string], button_state(self, kAEButtonNormal));
}

- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view {
    (void)flag;
    (void)view;
    DrawAEButton(frame, [[self attributedTitle] string], button_state(self, kAEButtonPressed));
}

@end

@implementation AECheckBoxCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)view;
    draw_check_box(self, frame, kAEButtonNormal);
}

- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view {
    (void)flag;
    (void)view;
    draw_check_box(self, frame, kAEButtonPressed);
}

@end

@implementation AERadioCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)view;
    const bool enabled = [self isEnabled];
    const NSRect bounds = NSMakeRect(frame.origin.x + (frame.size.width - kCircleSize) / 2,
                                     frame.origin.y + (frame.size.height - kCircleSize) / 2,
                                     kCircleSize, kCircleSize);
    NSBezierPath* circle = [NSBezierPath bezierPathWithOvalInRect:bounds];
    [GetAEColor(enabled ? kAEButtonFace : kAEDisabledButtonFace) setFill];
    [circle fill];
    if (enabled) {
        NSGradient* sheen = adm::new_sheen();
        [sheen drawInBezierPath:circle angle:90];
        [sheen release];
    }
    NSColor* outline = GetAEColor(kAEButtonOutline);
    [(enabled ? outline : [outline colorWithAlphaComponent:0.33]) setStroke];
    [circle stroke];
    if ([self state] != 1) return;
    [GetAEColor(enabled ? kAEButtonText : kAEDisabledButtonText) setFill];
    [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect(bounds, kDotInset, kDotInset)] fill];
}

@end

@implementation AEPopupButtonCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)view;
    const bool enabled = [self isEnabled];
    const auto [x, y] = frame.origin;
    const auto [w, h] = frame.size;
    DrawAEButton(frame, nil, button_state(self, kAEButtonNormal));

    adm::set_antialiasing(true);
    NSMenuItem* selected = [self selectedItem];
    NSColor* color = GetAEColor(enabled ? kAEText : kAEDisabledText);
    adm::Title(selected ? [selected title] : @"", color, adm::kLeftAlignment.value)
        .draw(x + kTitleIndent, w - h - kTitleIndent, h);

    const CGFloat arrow_left = x + w - h;
    [color setFill];
    draw_arrow(frame, arrow_left);

    adm::set_antialiasing(false);
    [GetAEColor(enabled ? kAEButtonOutline : kAEDisabledButtonOutline) setStroke];
    adm::stroke_line(arrow_left - 2, y + 3, arrow_left - 2, y + h - 3);
    adm::set_antialiasing(true);
}

@end
