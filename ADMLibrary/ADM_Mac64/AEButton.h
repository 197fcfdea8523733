// The face of a button, shared by push buttons, check boxes and pop-ups.

#pragma once

#include <Cocoa/Cocoa.h>

enum AEButtonState { kAEButtonNormal = 0, kAEButtonPressed = 1, kAEButtonDisabled = 2 };

// Paints a button in the host's colours; any other state counts as normal. `title` may be nil.
void DrawAEButton(CGRect frame, NSString* title, int state);

namespace adm {

// The sheen of faces: a faint gradient from white to black. The caller releases it.
NSGradient* new_sheen();

// A title in the small font.
struct Title {
    Title(NSString* text, NSColor* color, unsigned long alignment);
    ~Title();
    Title(const Title&) = delete;
    Title& operator=(const Title&) = delete;

    // Draws one line, a little above the middle of a control of that height.
    void draw(CGFloat x, CGFloat width, CGFloat control_height) const;

  private:
    NSMutableParagraphStyle* _style;
    NSAttributedString* _text;
};

void stroke_line(CGFloat x1, CGFloat y1, CGFloat x2, CGFloat y2);
void set_antialiasing(bool on);

} // namespace adm
