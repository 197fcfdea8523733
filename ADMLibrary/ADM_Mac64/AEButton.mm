#include "ADMLibrary/ADM_Mac64/AEButton.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AppKitValues.h"

namespace {

// Host colours for each state; only the entries with a name here are used.
enum Part { kOutline = 0, kFace = 1, kTitle = 2, kEdge = 5 };
constexpr short normalColors[7] = {7, 8, 9, 10, 11, 12, 13};
constexpr short highlightColors[7] = {14, 15, 16, 17, 18, 19, 20};
constexpr short disabledColors[7] = {28, 29, 30, 31, 32, 33, 34};

const short* colors_of(int state) {
    if (state == kAEButtonPressed) return highlightColors;
    return state == kAEButtonDisabled ? disabledColors : normalColors;
}

void fill_with_gradient(NSColor* from, NSColor* to, NSRect first, NSRect second) {
    NSGradient* gradient = [[NSGradient alloc] initWithStartingColor:from endingColor:to];
    [gradient drawInRect:first angle:90];
    [gradient drawInRect:second angle:90];
    [gradient release];
}

void draw_face(NSRect face, const short* colors, bool with_sheen) {
    [GetAEColor(colors[kFace]) setFill];
    NSRectFill(face);
    if (!with_sheen) return;
    NSGradient* sheen = adm::new_sheen();
    [sheen drawInRect:face angle:90];
    [sheen release];
}

void draw_edges(CGRect frame, NSColor* color) {
    const auto [x, y] = frame.origin;
    const auto [w, h] = frame.size;
    [color setStroke];
    adm::stroke_line(x, y + h, x + w, y + h);
    fill_with_gradient([color colorWithAlphaComponent:0.2], color, NSMakeRect(x, y, 1, h),
                       NSMakeRect(x + w - 1, y, 1, h));
}

} // namespace

namespace adm {

NSGradient* new_sheen() {
    return [[NSGradient alloc] initWithStartingColor:[NSColor colorWithDeviceWhite:1.0 alpha:0.1]
                                         endingColor:[NSColor colorWithDeviceWhite:0.0 alpha:0.1]];
}

Title::Title(NSString* text, NSColor* color, unsigned long alignment)
    : _style([[NSParagraphStyle defaultParagraphStyle] mutableCopy]) {
    [_style setAlignment:AppKitValue{alignment}];
    NSDictionary* attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:GetMiniSystemFont(), NSFontAttributeName, color,
                                                   NSForegroundColorAttributeName, _style,
                                                   NSParagraphStyleAttributeName, nil];
    _text = [[NSAttributedString alloc] initWithString:text attributes:attributes];
}

Title::~Title() {
    [_text release];
    [_style release];
}

void Title::draw(CGFloat x, CGFloat width, CGFloat control_height) const {
    const CGFloat text_height = [_text size].height;
    [_text drawInRect:NSMakeRect(x, (control_height - 2 - text_height) / 2, width, control_height)];
}

void stroke_line(CGFloat x1, CGFloat y1, CGFloat x2, CGFloat y2) {
    NSBezierPath* path = [NSBezierPath bezierPath];
    [path moveToPoint:NSMakePoint(x1, y1)];
    [path lineToPoint:NSMakePoint(x2, y2)];
    [path stroke];
}

void set_antialiasing(bool on) {
    [[NSGraphicsContext currentContext] setShouldAntialias:on];
}

} // namespace adm

void DrawAEButton(CGRect frame, NSString* title, int state) {
    const short* colors = colors_of(state);
    const NSRect face = NSMakeRect(frame.origin.x + 1, frame.origin.y + 1, frame.size.width - 2,
                                   frame.size.height - 1);
    draw_face(face, colors, state != kAEButtonDisabled);

    adm::set_antialiasing(false);
    draw_edges(frame, GetAEColor(colors[kEdge]));
    if (title) {
        adm::set_antialiasing(true);
        adm::Title(title, GetAEColor(colors[kTitle]), adm::kCenterAlignment.value)
            .draw(frame.origin.x, frame.size.width, frame.size.height);
        adm::set_antialiasing(false);
    }
    [GetAEColor(colors[kOutline]) setStroke];
    [[NSBezierPath bezierPathWithRect:face] stroke];
    [[NSColor colorWithDeviceWhite:0.8 alpha:0.05] setStroke];
    [[NSBezierPath bezierPathWithRect:NSMakeRect(frame.origin.x + 2, frame.origin.y + 2,
                                                 frame.size.width - 4, frame.size.height - 3)]
        stroke];
    adm::set_antialiasing(true);
}
