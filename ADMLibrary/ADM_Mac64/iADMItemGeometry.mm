// The place and best size of an item's views, and the label next to a check box or radio button or
// on a frame.

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

using adm::wrap16;

namespace {

// The place of the label: right of a button and a little lower, or on the line above a frame's box.
constexpr Point kButtonLabelOffset = {2, 19};
constexpr Point kFrameLabelOffset = {13, 9};

struct Layout {
    Rect view, label;
};

Layout beside(const Rect& r, const Point& offset) {
    const std::int16_t text_left = wrap16(r.left + offset.h);
    const std::int16_t text_top = wrap16(r.top + offset.v);
    return {{r.top, r.left, r.bottom, wrap16(r.left + offset.h - 1)},
            {text_top, text_left, r.bottom, r.right}};
}

Layout on_top(const Rect& r, const Point& offset) {
    return {{wrap16(r.top + offset.v), r.left, r.bottom, r.right},
            {r.top, wrap16(r.left + offset.h), wrap16(r.top + offset.v - 1), r.right}};
}

} // namespace

NSView* iADMItem::view() const {
    return _box ? (NSView*)_box : (NSView*)_control;
}

void iADMItem::SetBoundsRect(const Rect* r) {
    _bounds = *r;
    if (view() && _label) {
        const Layout layout = _isFrame ? on_top(*r, _labelOffset) : beside(*r, _labelOffset);
        [view() setFrame:adm::frame_of(layout.view)];
        [_label setFrame:adm::frame_of(layout.label)];
    } else {
        [(view() ? view() : (NSView*)_label) setFrame:adm::frame_of(*r)];
    }
}

void iADMItem::GetBoundsRect(Rect* out) const {
    *out = view() ? adm::rect_of([view() frame]) : Rect{0, 0, 0, 0};
    if (!_label) return;
    const Rect label = adm::rect_of([_label frame]);
    *out = view() ? adm::union_of(*out, label) : label;
}

void iADMItem::SetLocalRect(const Rect* r) {
    Rect current;
    GetBoundsRect(&current);
    const Rect moved = adm::moved_by(*r, current);
    SetBoundsRect(&moved);
}

Rect iADMItem::best_rect() const {
    Rect best = {0, 0, 0, 0};
    if (view()) CalculateControlBounds((NSControl*)view(), &best);
    if (!_label) return best;
    Rect label;
    CalculateControlBounds(_label, &label);
    return view() ? adm::union_of(best, label) : label;
}

void iADMItem::GetBestSize(Point* out) const {
    const Rect best = best_rect();
    *out = {wrap16(best.bottom - best.top), wrap16(best.right - best.left)};
}

void iADMItem::makeLabel(NSString* text) {
    if (_control) _labelOffset = _isFrame ? kFrameLabelOffset : kButtonLabelOffset;
    Rect r = _bounds;
    _label = [[NSTextField alloc] initWithFrame:adm::frame_of(r)];
    [_label setFont:GetMiniSystemFont()];
    [_label setBezeled:NO];
    [_label setDrawsBackground:NO];
    [_label setBordered:NO];
    [_label setEditable:NO];
    [_label setStringValue:text];
    [_label setTextColor:GetAETextColor()];
    Point best;
    GetBestSize(&best);
    r.bottom = wrap16(r.top + best.v);
    if (!dialog->_view)
        adm::assertion_failed("makeLabel", adm::kAssertionSource, 704, "dialog->_view");
    [dialog->_view addSubview:_label];
    SetBoundsRect(&r);
}
