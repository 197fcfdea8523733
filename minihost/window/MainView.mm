#include "minihost/window/MainView.h"

#include "minihost/window/CompositionView.h"
#include "minihost/window/LayerListView.h"
#include "minihost/window/WindowLayout.h"
#include "minihost/window/WindowStyle.h"

using namespace minihost;

struct MainViewState {
    NSView* docked = nil;
    std::string dock_title, status;
    WindowLayout layout;
};

namespace {

NSRect rect(const Box& box) {
    return NSMakeRect(box.x, box.y, box.width, box.height);
}

} // namespace

@interface MainView (Private)
- (void)layOut;
@end

@implementation MainView
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _state = new MainViewState();
    _view = [[CompositionView alloc] initWithFrame:NSZeroRect];
    _list = [[LayerListView alloc] initWithFrame:NSZeroRect];
    [self addSubview:_view];
    [self addSubview:_list];
    [_view release];
    [_list release];
    [self layOut];
    return self;
}
- (void)dealloc {
    delete _state;
    [super dealloc];
}
- (BOOL)isFlipped {
    return YES;
}

- (void)setEditor:(SceneEditor*)editor {
    [_view setEditor:editor];
    [_list setEditor:editor];
}
- (CompositionView*)compositionView {
    return _view;
}
- (LayerListView*)layerList {
    return _list;
}

- (void)layOut {
    const NSSize size = [self bounds].size;
    DockedSize docked;
    if (_state->docked)
        docked = {[_state->docked frame].size.width, [_state->docked frame].size.height};
    _state->layout = window_layout(size.width, size.height, docked);
    [_view setFrame:rect(_state->layout.view)];
    [_list setFrame:rect(_state->layout.list)];
    if (_state->docked)
        [_state->docked setFrameOrigin:NSMakePoint(_state->layout.panel.x, _state->layout.panel.y)];
    [self setNeedsDisplay:YES];
}
- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    if (_state) [self layOut];
}
// layOut alone lays out the parts.
- (BOOL)autoresizesSubviews {
    return NO;
}

- (void)dock:(NSView*)panel title:(const std::string&)title {
    _state->docked = panel;
    _state->dock_title = title;
    [self layOut];
}

- (void)setStatus:(const std::string&)text {
    if (text == _state->status) return;
    _state->status = text;
    [self setNeedsDisplayInRect:rect(_state->layout.status)];
}
- (void)contentsChanged {
    [_view setNeedsDisplay:YES];
    [_list rowsChanged];
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    const WindowLayout& at = _state->layout;
    style::fill([self bounds], style::ColorRole::Line);
    if (_state->docked) {
        style::fill(rect(at.dock), style::ColorRole::Panel);
        style::fill(rect(at.dock_header), style::ColorRole::Header);
        style::draw_text(_state->dock_title, NSInsetRect(rect(at.dock_header), 8, 0),
                         style::color(style::ColorRole::HeaderText));
    }
    style::fill(rect(at.status), style::ColorRole::Header);
    style::draw_text(_state->status, NSInsetRect(rect(at.status), 10, 0),
                     style::color(style::ColorRole::HeaderText));
}
@end
