#include "minihost/window/DockedPanel.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/PanelWindow.h"
#include "minihost/window/MainView.h"

namespace minihost {

namespace {

class DockedPanel : public PanelView {
  public:
    explicit DockedPanel(MainView* main_view) : _main_view(main_view) {
        const AutoreleasePool pool;
        _container = [[NSView alloc]
            initWithFrame:NSMakeRect(0, 0, default_panel_width, default_panel_height)];
        [_container setHidden:YES];
        [_main_view addSubview:_container];
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
        dock();
    }
    void set_title(const std::string& utf8) override {
        _title = utf8;
        dock();
    }
    std::string title() const override { return _title; }
    void show(bool visible) override {
        const AutoreleasePool pool;
        if (!visible) give_up_focus();
        [_container setHidden:!visible];
        _visible = visible;
        [_main_view dock:visible ? _container : nil title:_title];
    }
    bool is_visible() const override { return _visible; }

  private:
    void dock() {
        const AutoreleasePool pool;
        if (_visible) [_main_view dock:_container title:_title];
    }
    // Ends editing in a field of the panel, as when the user leaves it.
    void give_up_focus() {
        NSResponder* focus = [[_main_view window] firstResponder];
        if ([focus isKindOfClass:[NSView class]] &&
            [static_cast<NSView*>(focus) isDescendantOf:_container])
            [[_main_view window] makeFirstResponder:nil];
    }

    MainView* _main_view;
    NSView* _container;
    std::string _title;
    bool _visible = false;
};

} // namespace

std::unique_ptr<PanelView> make_docked_panel(MainView* main_view) {
    return std::make_unique<DockedPanel>(main_view);
}

} // namespace minihost
