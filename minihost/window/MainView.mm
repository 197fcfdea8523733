#include "minihost/window/MainView.h"

#include "minihost/window/CompositionView.h"
#include "minihost/window/LayerListView.h"
#include "minihost/window/WindowLayout.h"
#include "minihost/window/WindowStyle.h"

using namespace minihost;

struct DeskState {
    NSView* docked = nil;
    std::string dock_title, status;
    Layout layout;
};

namespace {

NSRect rect(const Box& box) {
    return NSMakeRect(box.x, box.y, box.width, box.height);
}

} // namespace

@interface Desk (Private)
- (void)layOut;
@end

@implementation Desk
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (!self) return nil;
    _state = new DeskState();
    _view = [[CompositionView alloc] initWithFrame:NSZeroRect];
    _list = [[LayerList alloc] initWithFrame:NSZeroRect];
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

- (void)setWorkbench:(Workbench*)bench {
    [_view setWorkbench:bench];
    [_list setWorkbench:bench];
}
- (CompositionView*)compositionView {
    return _view;
}
- (LayerList*)layerList {
    return _list;
}

- (void)layOut {
    const NSSize size = [self bounds].size;
    Docked docked;
    if (_state->docked)
        docked = {[_state->docked frame].size.width, [_state->docked frame].size.height};
    _state->layout = lay_out(size.width, size.height, docked);
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
// The parts are laid out by layOut alone.
- (BOOL)autoresizesSubviews {
    return NO;
}

- (void)dock:(NSView*)view title:(const std::string&)title {
    _state->docked = view;
    _state->dock_title = title;
    [self layOut];
}

- (void)setStatus:(const std::string&)text {
    if (text == _state->status) return;
    _state->status = text;
    [self setNeedsDisplayInRect:rect(_state->layout.status)];
}
- (void)lookChanged {
    [_view setNeedsDisplay:YES];
    [_list rowsChanged];
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    const Layout& at = _state->layout;
    look::fill([self bounds], look::Part::Line);
    if (_state->docked) {
        look::fill(rect(at.dock), look::Part::Panel);
        look::fill(rect(at.dock_header), look::Part::Header);
        look::draw_text(_state->dock_title, NSInsetRect(rect(at.dock_header), 8, 0),
                        look::color(look::Part::HeaderText));
    }
    look::fill(rect(at.status), look::Part::Header);
    look::draw_text(_state->status, NSInsetRect(rect(at.status), 10, 0),
                    look::color(look::Part::HeaderText));
}
@end
