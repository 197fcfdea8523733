#include "ADMLibrary/ADM_Mac64/Geometry.h"

#include "core/truncated.h"

#include <algorithm>
#include <cmath>

namespace adm {

NSRect frame_of(const Rect& r) {
    return NSMakeRect(r.left, r.top, r.right - r.left, r.bottom - r.top);
}

Rect rect_of(const NSRect& frame) {
    const std::int64_t x = truncated(frame.origin.x);
    const std::int64_t y = truncated(frame.origin.y);
    return {wrap16(y), wrap16(x), wrap16(y + truncated(frame.size.height)),
            wrap16(x + truncated(frame.size.width))};
}

Rect union_of(const Rect& a, const Rect& b) {
    return {std::min(a.top, b.top), std::min(a.left, b.left), std::max(a.bottom, b.bottom),
            std::max(a.right, b.right)};
}

Rect moved_by(const Rect& r, const Rect& origin) {
    return {wrap16(r.top + origin.top), wrap16(r.left + origin.left), wrap16(r.bottom + origin.top),
            wrap16(r.right + origin.left)};
}

} // namespace adm

void CalculateControlBounds(NSControl* view, Rect* out) {
    NSRect frame = [view frame];
    if ([view isKindOfClass:[NSTextField class]]) {
        NSFont* font = [view font];
        NSDictionary* attributes =
            [NSDictionary dictionaryWithObjectsAndKeys:font, NSFontAttributeName, nil];
        const NSSize text = [[view stringValue] sizeWithAttributes:attributes];
        frame.size.width = std::ceil(text.width) + [font pointSize];
        frame.size.height = text.height;
    }
    *out = adm::rect_of(frame);
}
