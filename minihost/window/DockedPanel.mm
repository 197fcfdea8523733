#include "minihost/window/DockedPanel.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/PanelWindow.h"
#include "minihost/window/MainView.h"

namespace minihost {

namespace {

class DockedPanel : public PanelView {
  public:
    explicit DockedPanel(Desk* desk) : _desk(desk) {
        const AutoreleasePool pool;
        _container = [[NSView alloc]
            initWithFrame:NSMakeRect(0, 0, default_panel_width, default_panel_height)];
        [_container setHidden:YES];
        [_desk addSubview:_container];
    }
    ~DockedPanel() override {
        const AutoreleasePool pool;
        show(false);
        remove_subviews(_container);
        [_container removeFromSuperview];
        [_container release];
    }
    DockedPanel(const DockedPanel&) = delete;
    DockedPanel& operator=(const DockedPanel&) = delete;

    NSView* container() const override { return _container; }
    void resize(double width, double height) override {
        const AutoreleasePool pool;
        [_container setFrameSize:NSMakeSize(width, height)];
        place();
    }
    void set_title(const std::string& utf8) override {
        _title = utf8;
        place();
    }
    std::string title() const override { return _title; }
    void show(bool visible) override {
        const AutoreleasePool pool;
        if (!visible && [[_desk window] firstResponder] != [_desk window]) leave_focus();
        [_container setHidden:!visible];
        _visible = visible;
        [_desk dock:visible ? _container : nil title:_title];
    }
    bool is_visible() const override { return _visible; }

  private:
    void place() {
        const AutoreleasePool pool;
        if (_visible) [_desk dock:_container title:_title];
    }
    // What is typed in a field of the panel is taken, as when the user leaves it.
    void leave_focus() {
        NSResponder* focus = [[_desk window] firstResponder];
        if ([focus isKindOfClass:[NSView class]] &&
            [static_cast<NSView*>(focus) isDescendantOf:_container])
            [[_desk window] makeFirstResponder:nil];
    }

    Desk* _desk;
    NSView* _container;
    std::string _title;
    bool _visible = false;
};

} // namespace

std::unique_ptr<PanelView> make_docked_panel(Desk* desk) {
    return std::make_unique<DockedPanel>(desk);
}

} // namespace minihost
