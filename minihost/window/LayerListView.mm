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

@implementation LayerListView
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) _kept = new Selection();
    return self;
}
- (void)dealloc {
    delete _kept;
    [super dealloc];
}
- (void)setEditor:(SceneEditor*)editor {
    _editor = editor;
}

- (NSInteger)rowCount {
    return _editor ? static_cast<NSInteger>(_editor->scene().layer_count()) : 0;
}
- (const Layer&)layer:(NSInteger)row {
    return _editor->scene().layer_at(static_cast<std::size_t>(row));
}
- (BOOL)isRowSelected:(NSInteger)row {
    return _editor->is_selected([self layer:row].id);
}

- (void)selectFrom:(NSInteger)first to:(NSInteger)last {
    _editor->select_rows(static_cast<std::size_t>(std::max<NSInteger>(first, 0)),
                         static_cast<std::size_t>(last), *_kept);
}

- (void)pressRow:(NSInteger)row modifiers:(NSUInteger)modifiers {
    const BOOL shift = (modifiers & NSShiftKeyMask) != 0;
    const BOOL toggles = (modifiers & (NSControlKeyMask | NSCommandKeyMask)) != 0;
    _kept->clear();
    if (row < 0) {
        if (!shift && !toggles) _editor->select({});
        return;
    }
    if (shift) {
        [self selectFrom:_anchor to:row];
        return;
    }
    _anchor = row;
    if (toggles) {
        _editor->toggle([self layer:row].id);
        *_kept = _editor->scene().selection();
    } else {
        _editor->select({[self layer:row].id});
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
- (void)openRow:(NSInteger)__attribute__((unused))row {
}
- (std::string)emptyText {
    return "The composition has no layers";
}

- (void)drawHeader:(NSRect)rect {
    const Columns at = columns(rect);
    NSColor* color = style::color(style::ColorRole::HeaderText);
    style::draw_text("#", at.number, color, NSRightTextAlignment);
    style::draw_text("Layer", at.name, color);
    style::draw_text("Kind", at.kind, color);
}

- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color {
    const Layer& layer = [self layer:row];
    const Columns at = columns(rect);
    style::draw_text(std::to_string(row + 1), at.number, color, NSRightTextAlignment);
    [[NSColor colorWithDeviceRed:layer.color.red / 255.0
                           green:layer.color.green / 255.0
                            blue:layer.color.blue / 255.0
                           alpha:1] setFill];
    if (layer.kind == LayerKind::Solid)
        [[NSBezierPath bezierPathWithRoundedRect:at.swatch xRadius:2 yRadius:2] fill];
    style::draw_text(layer.name, at.name, color);
    style::draw_text(kind_text(layer.kind), at.kind, color);
    if (layer.three_d && layer.kind != LayerKind::Camera && layer.kind != LayerKind::Light)
        style::draw_text("3D", at.space, color, NSRightTextAlignment);
}
@end
