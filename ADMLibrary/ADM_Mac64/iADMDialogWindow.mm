// A dialog on the screen, in a window or a host's panel: showing, title, place and size.

#include "ADMLibrary/ADM_Mac64/CocoaText.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <algorithm>

void iADMDialog::Show(bool show) {
    if (show) {
        if (_window) make_room_for_title_bar();
        [_window makeKeyAndOrderFront:nil];
    } else {
        [_window orderBack:nil];
    }
}

// A dialog is sized by its window's frame, which includes the title bar. If items do not fit below
// it, the frame grows downwards until the content is as high as the frame was.
void iADMDialog::make_room_for_title_bar() {
    std::int16_t lowest = 0;
    for (const iADMItem& item : _items) {
        Rect bounds;
        item.GetBoundsRect(&bounds);
        lowest = std::max(lowest, bounds.bottom);
    }
    NSRect frame = [_window frame];
    const NSSize content = [_view frame].size;
    const CGFloat title_bar = frame.size.height - content.height;
    if (content.width != frame.size.width || title_bar <= 0 || lowest <= content.height) return;
    frame.size.height += title_bar;
    frame.origin.y -= title_bar;
    [_window setFrame:frame display:YES];
}

bool iADMDialog::IsVisible() const {
    return _window ? [_window isVisible] : [[_view window] isVisible];
}

bool iADMDialog::IsEnabled() const {
    return [_window isVisible];
}

void iADMDialog::SetText(const char* text) {
    if (_window) {
        const adm::CocoaText title(text);
        if (title.string()) [_window setTitle:title.string()];
    } else if (_panelH && _panelSuite) {
        _panelSuite->AEGP_SetTitle(_panelH, text);
    }
}

void iADMDialog::GetBoundsRect(Rect* out) const {
    *out = _window ? adm::rect_of([_window frame]) : _bounds;
}

void iADMDialog::SetBoundsRect(const Rect* r) {
    if (_window)
        [_window setFrame:adm::frame_of(*r) display:YES];
    else
        _bounds = *r;
}

void iADMDialog::SetLocalRect(const Rect* r) {
    Rect current;
    GetBoundsRect(&current);
    const Rect moved = adm::moved_by(*r, current);
    SetBoundsRect(&moved);
}

A_Err iADMDialog::S_GetSnapSizes(_AEGP_PanelRefcon* refcon, A_LPoint* sizes, A_long* count) {
    if (!refcon) return A_Err_NONE;
    const Rect& bounds = adm::record(reinterpret_cast<_Opaque_ADMDialog*>(refcon))->_bounds;
    sizes[0] = {bounds.right - bounds.left, bounds.bottom - bounds.top};
    *count = 1;
    return A_Err_NONE;
}
