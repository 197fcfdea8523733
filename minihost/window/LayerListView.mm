#include "minihost/window/LayerListView.h"

#include "minihost/window/WindowStyle.h"

#include <algorithm>
#include <cctype>

using namespace minihost;

namespace {

struct Columns {
    NSRect number, swatch, name, kind, space;
};

Columns columns(NSRect row) {
    const double y = NSMinY(row), h = NSHeight(row), right = NSMaxX(row) - 8;
    const auto box = [&](double x, double end) {
        return NSMakeRect(x, y, std::max(0.0, end - x), h);
    };
    return {box(4, 44), NSMakeRect(52, y + 5, 10, h - 10), box(70, right - 110),
            box(right - 100, right - 36), box(right - 28, right)};
}

std::string kind_text(LayerKind kind) {
    std::string text(name_of(kind));
    if (!text.empty()) text[0] = static_cast<char>(std::toupper(text[0]));
    return text;
}

} // namespace

@implementation LayerList
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) _kept = new Selection();
    return self;
}
- (void)dealloc {
    delete _kept;
    [super dealloc];
}
- (void)setWorkbench:(Workbench*)bench {
    _bench = bench;
}

- (NSInteger)rowCount {
    return _bench ? static_cast<NSInteger>(_bench->scene().layer_count()) : 0;
}
- (const Layer&)layer:(NSInteger)row {
    return _bench->scene().layer_at(static_cast<std::size_t>(row));
}
- (BOOL)isRowSelected:(NSInteger)row {
    return _bench->is_selected([self layer:row].id);
}

- (void)selectFrom:(NSInteger)first to:(NSInteger)last {
    _bench->select_rows(static_cast<std::size_t>(std::max<NSInteger>(first, 0)),
                        static_cast<std::size_t>(last), *_kept);
}

- (void)pressRow:(NSInteger)row modifiers:(NSUInteger)modifiers {
    const BOOL shift = (modifiers & NSShiftKeyMask) != 0;
    const BOOL toggles = (modifiers & (NSControlKeyMask | NSCommandKeyMask)) != 0;
    _kept->clear();
    if (row < 0) {
        if (!shift && !toggles) _bench->deselect();
        return;
    }
    if (shift) {
        [self selectFrom:_anchor to:row];
        return;
    }
    _anchor = row;
    if (toggles) {
        _bench->toggle([self layer:row].id);
        *_kept = _bench->scene().selection();
    } else {
        _bench->select_only([self layer:row].id);
    }
}
- (void)dragToRow:(NSInteger)row {
    [self selectFrom:_anchor to:row];
}
- (void)moveToRow:(NSInteger)row extending:(BOOL)extending {
    _kept->clear();
    if (!extending) _anchor = row;
    [self selectFrom:_anchor to:row];
}
- (std::string)emptyText {
    return "The composition has no layers";
}

- (void)drawHeader:(NSRect)rect {
    const Columns at = columns(rect);
    NSColor* color = look::color(look::Part::HeaderText);
    look::draw_text("#", at.number, color, 1);
    look::draw_text("Layer", at.name, color);
    look::draw_text("Kind", at.kind, color);
}

- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color {
    const Layer& layer = [self layer:row];
    const Columns at = columns(rect);
    look::draw_text(std::to_string(row + 1), at.number, color, 1);
    [[NSColor colorWithDeviceRed:layer.color.red / 255.0
                           green:layer.color.green / 255.0
                            blue:layer.color.blue / 255.0
                           alpha:1] setFill];
    const BOOL is_sheet = layer.kind == LayerKind::Solid;
    if (is_sheet) [[NSBezierPath bezierPathWithRoundedRect:at.swatch xRadius:2 yRadius:2] fill];
    look::draw_text(layer.name, at.name, color);
    look::draw_text(kind_text(layer.kind), at.kind, color);
    const BOOL in_space =
        layer.is_3d() && layer.kind != LayerKind::Camera && layer.kind != LayerKind::Light;
    if (in_space) look::draw_text("3D", at.space, color, 1);
}
@end
